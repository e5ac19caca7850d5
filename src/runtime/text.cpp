#include "runtime/text.h"

#include "platform/codePage.h"
#include "platform/user32.h"
#include "runtime/characters.h"
#include "runtime/runtimeError.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>

namespace runtime {

namespace {

/// The lower case of each byte that is a character.
const std::array<char, 256>& lowerCases() {
    static const std::array<char, 256> lower = [] {
        std::array<char, 256> all{};
        std::iota(all.begin(), all.end(), char{0});
        for (char& character : all)
            platform::CharLowerBuffA({&character, 1});
        return all;
    }();
    return lower;
}

/// The capitals by their small letters: of the alphabets that have any, Latin, Greek and Cyrillic.
const std::map<std::string, std::string, std::less<>>& capitals() {
    static const auto all = [] {
        constexpr char16_t lastCapital = 0x52E;
        std::map<std::string, std::string, std::less<>> found;
        for (char16_t letter = 'A'; letter <= lastCapital; ++letter) {
            const std::string capital = platform::toAnsi({&letter, 1});
            if (platform::toUtf16(capital) != std::u16string_view(&letter, 1))
                continue;
            if (const std::string small = lowerCase(capital); small != capital)
                found[small] = capital;
        }
        return found;
    }();
    return all;
}

/// Whether a text begins with `what`, which is in lower case.
bool beginsIgnoringCase(std::string_view text, std::string_view what) {
    constexpr std::size_t longestCharacter = 4; // bytes
    std::array<char, longestCharacter> character{};
    while (!what.empty()) {
        const std::size_t size = characterSize(text);
        if (size == 0)
            return false;
        text.copy(character.data(), size);
        text.remove_prefix(size);
        if (size == 1)
            character[0] = lowerCases()[static_cast<unsigned char>(character[0])];
        else
            platform::CharLowerBuffA({character.data(), size});
        if (!what.starts_with({character.data(), size}))
            return false;
        what.remove_prefix(size);
    }
    return true;
}

} // namespace

std::string lowerCase(std::string_view text) {
    std::string result(text);
    platform::CharLowerBuffA(result);
    return result;
}

std::string upperCase(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::string_view character = text.substr(0, characterSize(text));
        const auto found = capitals().find(character);
        result += found == capitals().end() ? character : std::string_view(found->second);
        text.remove_prefix(character.size());
    }
    return result;
}

bool holdsIgnoringCase(std::string_view text, std::string_view what) {
    if (what.empty())
        return true;
    if (!oneByteEach()) {
        for (; !text.empty(); text.remove_prefix(characterSize(text)))
            if (beginsIgnoringCase(text, what))
                return true;
        return false;
    }
    const std::array<char, 256>& lower = lowerCases();
    const auto equal = [&lower](char seen, char wanted) {
        return lower[static_cast<unsigned char>(seen)] == wanted;
    };
    return std::search(text.begin(), text.end(), what.begin(), what.end(), equal) != text.end();
}

std::string_view trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> split(std::string_view text, std::string_view mark) {
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t end = findText(text, mark);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + mark.size());
    }
}

const std::string& element(const std::vector<std::string>& parts, std::size_t index) {
    if (index >= parts.size())
        throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    return parts[index];
}

std::string replaceAll(std::string text, std::string_view what, std::string_view with) {
    if (what.empty())
        return text;
    for (std::size_t found = findText(text, what); found != std::string::npos;
         found = findText(text, what, found + with.size()))
        text.replace(found, what.size(), with);
    return text;
}

std::string_view untilNul(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

} // namespace runtime
