#include "runtime/text.h"

#include "platform/user32.h"
#include "runtime/runtimeError.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace runtime {

namespace {

/// The lower case of each byte. One by one: two bytes together may be one character.
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

} // namespace

std::string lowerCase(std::string_view text) {
    std::string result(text);
    platform::CharLowerBuffA(result);
    return result;
}

std::string upperCase(std::string_view text) {
    static const std::array<char, 256> upper = [] {
        std::array<char, 256> all{};
        std::iota(all.begin(), all.end(), char{0});
        for (std::size_t code = 0; code < all.size(); ++code)
            if (const char small = lowerCases()[code]; small != static_cast<char>(code))
                all[static_cast<unsigned char>(small)] = static_cast<char>(code);
        return all;
    }();
    std::string result(text);
    for (char& character : result)
        character = upper[static_cast<unsigned char>(character)];
    return result;
}

bool holdsIgnoringCase(std::string_view text, std::string_view what) {
    if (what.empty())
        return true;
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

std::vector<std::string> split(std::string_view text, char mark) {
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t end = text.find(mark);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
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
    for (std::size_t found = text.find(what); found != std::string::npos;
         found = text.find(what, found + with.size()))
        text.replace(found, what.size(), with);
    return text;
}

std::string_view untilNul(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

} // namespace runtime
