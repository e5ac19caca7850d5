#include "runtime/characters.h"

#include "platform/codePage.h"

#include <algorithm>

namespace runtime {

namespace {

bool isUtf8() {
    return platform::GetACP() == platform::utf8CodePage;
}

/// Bytes of a character of UTF-8 by its first one.
std::size_t utf8Length(unsigned char first) {
    return first >= 0xC2 && first < 0xE0   ? 2
           : first >= 0xE0 && first < 0xF0 ? 3
           : first >= 0xF0 && first < 0xF5 ? 4
                                           : 1;
}

/// The platform's own iteration knows nothing of UTF-8.
std::size_t utf8Size(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    const std::size_t size = utf8Length(first);
    const auto follows = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };
    if (size > text.size() ||
        !std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(size), follows))
        return 1;
    if (size < 3)
        return size;
    // Longer than need be, half of a pair of UTF-16, or beyond the last character.
    const auto second = static_cast<unsigned char>(text[1]);
    const bool none = (first == 0xE0 && second < 0xA0) || (first == 0xED && second >= 0xA0) ||
                      (first == 0xF0 && second < 0x90) || (first == 0xF4 && second >= 0x90);
    return none ? 1 : size;
}

} // namespace

bool oneByteEach() {
    // Asked often, and always the same.
    static const bool each = [] {
        if (isUtf8())
            return false;
        for (int byte = 0; byte < 256; ++byte)
            if (platform::IsDBCSLeadByte(static_cast<char>(byte)))
                return false;
        return true;
    }();
    return each;
}

std::size_t characterSize(std::string_view text) {
    if (text.size() < 2 || oneByteEach())
        return std::min<std::size_t>(text.size(), 1);
    if (isUtf8())
        return utf8Size(text);
    return platform::IsDBCSLeadByte(text[0]) && text[1] != '\0' ? 2 : 1;
}

std::size_t characterCount(std::string_view text) {
    if (oneByteEach())
        return text.size();
    std::size_t count = 0;
    for (; !text.empty(); text.remove_prefix(characterSize(text)))
        ++count;
    return count;
}

std::size_t sizeOfCharacters(std::string_view text, std::size_t count) {
    if (oneByteEach())
        return std::min(count, text.size());
    std::size_t size = 0;
    for (; count > 0 && size < text.size(); --count)
        size += characterSize(text.substr(size));
    return size;
}

std::string_view cutToSize(std::string_view text, std::size_t size) {
    if (size >= text.size())
        return text;
    std::size_t end = 0;
    for (std::size_t next = 0; next <= size; next += characterSize(text.substr(next)))
        end = next;
    return text.substr(0, end);
}

std::string_view withoutTornEnd(std::string_view text) {
    if (oneByteEach())
        return text;
    for (std::size_t at = 0; at < text.size(); at += characterSize(text.substr(at))) {
        const std::size_t whole = isUtf8() ? utf8Length(static_cast<unsigned char>(text[at]))
                                           : (platform::IsDBCSLeadByte(text[at]) ? 2 : 1);
        if (whole > text.size() - at)
            return text.substr(0, at);
    }
    return text;
}

std::size_t findText(std::string_view text, std::string_view what, std::size_t from) {
    if (oneByteEach() || what.empty())
        return text.find(what, from);
    for (std::size_t at = from; at < text.size(); at += characterSize(text.substr(at)))
        if (text.substr(at).starts_with(what))
            return at;
    return std::string_view::npos;
}

std::size_t findLastText(std::string_view text, std::string_view what) {
    std::size_t last = std::string_view::npos;
    for (std::size_t at = findText(text, what); at != std::string_view::npos;
         at = findText(text, what, at + characterSize(text.substr(at))))
        last = at;
    return last;
}

bool endsInCharacter(std::string_view text, std::string_view character) {
    return text.ends_with(character) && findLastText(text, character) == text.size() - character.size();
}

int characterCode(std::string_view character) {
    unsigned code = 0;
    for (const char byte : character)
        code = code << 8U | static_cast<unsigned char>(byte);
    return static_cast<int>(code);
}

std::string characterOfCode(int code) {
    std::string bytes;
    auto rest = static_cast<unsigned>(code);
    do {
        bytes.insert(bytes.begin(), static_cast<char>(rest & 0xFFU));
        rest >>= 8U;
    } while (rest != 0);
    return bytes;
}

std::u32string toUtf32(std::string_view text) {
    std::u32string characters;
    for (const char16_t unit : platform::toUtf16(text)) {
        const bool second = unit >= 0xDC00 && unit < 0xE000 && !characters.empty() &&
                            characters.back() >= 0xD800 && characters.back() < 0xDC00;
        if (second)
            characters.back() = 0x10000 + ((characters.back() - 0xD800) << 10U) + (unit - 0xDC00U);
        else
            characters += unit;
    }
    return characters;
}

std::string fromUtf32(std::u32string_view text) {
    std::u16string units;
    for (const char32_t character : text)
        if (character < 0x10000)
            units += static_cast<char16_t>(character);
        else
            units.append({static_cast<char16_t>(0xD7C0 + (character >> 10U)),
                          static_cast<char16_t>(0xDC00 + (character & 0x3FFU))});
    return platform::toAnsi(units);
}

} // namespace runtime
