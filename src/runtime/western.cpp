#include "runtime/western.h"

#include "platform/codePage.h"

#include <array>

namespace runtime {

namespace {

constexpr unsigned westernCodePage = 1252;

/// Codes 0x80 to 0x9F; all others are those of UTF-16. The five that the code page leaves free stand for
/// themselves.
constexpr std::array<char16_t, 32> middle = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr unsigned firstMiddle = 0x80;

char16_t unitOf(unsigned char code) {
    const bool inMiddle = code >= firstMiddle && code < firstMiddle + middle.size();
    return inMiddle ? middle[code - firstMiddle] : char16_t{code};
}

struct Likeness {
    char16_t letter;
    const char* nearest;
};
/// Not left to the platform, whose tables differ: 932 has a Greek beta for the sharp s.
constexpr Likeness likenesses[] = {{0xC4, "A"}, {0xD6, "O"}, {0xDC, "U"}, {0xE4, "a"},
                                   {0xF6, "o"}, {0xFC, "u"}, {0xDF, "ss"}};

std::string converted(char16_t unit) {
    std::string character = platform::toAnsi({&unit, 1});
    if (platform::toUtf16(character) != std::u16string_view(&unit, 1))
        for (const Likeness& likeness : likenesses)
            if (likeness.letter == unit)
                return likeness.nearest;
    return character;
}

} // namespace

std::string western(std::string_view text) {
    if (platform::GetACP() == westernCodePage)
        return std::string(text);
    std::string result;
    for (const char character : text)
        result += converted(unitOf(static_cast<unsigned char>(character)));
    return result;
}

} // namespace runtime
