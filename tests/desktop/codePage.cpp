// The ANSI code page of the simulated desktop: Windows-1252.
#include "platform/codePage.h"

#include <algorithm>
#include <array>

namespace {

/// Codes 0x80 to 0x9F; all others are those of UTF-16. The five that the code page leaves free stand for
/// themselves.
constexpr std::array<char16_t, 32> middle = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr unsigned first = 0x80;

} // namespace

namespace platform {

std::u16string toUtf16(std::string_view text) {
    std::u16string result;
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        const bool inMiddle = code >= first && code < first + middle.size();
        result += inMiddle ? middle[code - first] : char16_t{code};
    }
    return result;
}

std::string toAnsi(std::u16string_view text) {
    std::string result;
    for (const char16_t character : text) {
        const auto found = std::find(middle.begin(), middle.end(), character);
        if (found != middle.end())
            result += static_cast<char>(first + static_cast<unsigned>(found - middle.begin()));
        else if (character < first || (character >= first + middle.size() && character <= 0xFF))
            result += static_cast<char>(character);
        else
            result += '?';
    }
    return result;
}

} // namespace platform
