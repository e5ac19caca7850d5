// The ANSI code page of the world, whichever it is.
#include "platform/codePage.h"

#include "codePages.h"
#include "runtime/characters.h"
#include "runtime/text.h"

#include <doctest/doctest.h>

#include <numeric>
#include <string>

namespace {

std::string ansi(char16_t character) {
    return platform::toAnsi({&character, 1});
}

/// Whether a text comes back from UTF-16 as it was, or as another with the same meaning.
bool comesBack(const std::string& text) {
    const std::u16string wide = platform::toUtf16(text);
    return platform::toUtf16(platform::toAnsi(wide)) == wide;
}

} // namespace

TEST_SUITE_BEGIN("contract/codePage");

TEST_CASE("a lower-case text folds the letters of the Western code page and leaves the rest") {
    if (platform::GetACP() != 1252)
        return;
    std::string all(256, '\0');
    std::iota(all.begin(), all.end(), '\0');
    std::string expected = all;
    const std::string capitals =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZ\x8A\x8C\x8E\x9F\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9"
        "\xCA\xCB\xCC\xCD\xCE\xCF\xD0\xD1\xD2\xD3\xD4\xD5\xD6\xD8\xD9\xDA\xDB\xDC\xDD\xDE";
    const std::string small =
        "abcdefghijklmnopqrstuvwxyz\x9A\x9C\x9E\xFF\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9"
        "\xEA\xEB\xEC\xED\xEE\xEF\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF8\xF9\xFA\xFB\xFC\xFD\xFE";
    REQUIRE(capitals.size() == small.size());
    for (std::size_t at = 0; at < capitals.size(); ++at)
        expected[static_cast<unsigned char>(capitals[at])] = small[at];
    CHECK(runtime::lowerCase(all) == expected);
}

TEST_CASE("letters of every alphabet that the code page has fold, each by itself and in a text") {
    constexpr char16_t pairs[][2] = {{u'A', u'a'},           {u'\u00C4', u'\u00E4'}, {u'\u00D6', u'\u00F6'},
                                     {u'\u0141', u'\u0142'}, {u'\u0160', u'\u0161'}, {u'\u0391', u'\u03B1'},
                                     {u'\u0416', u'\u0436'}, {u'\u0401', u'\u0451'}, {u'\uFF21', u'\uFF41'}};
    std::string capitals;
    std::string small;
    for (const auto& [capital, letter] : pairs) {
        if (!codePageHas(capital) || !codePageHas(letter))
            continue;
        CHECK(runtime::lowerCase(ansi(capital)) == ansi(letter));
        CHECK(runtime::upperCase(ansi(letter)) == (capital == u'\uFF21' ? ansi(letter) : ansi(capital)));
        CHECK(runtime::lowerCase(ansi(letter)) == ansi(letter));
        capitals += "x" + ansi(capital) + "_";
        small += "x" + ansi(letter) + "_";
    }
    CHECK(runtime::lowerCase(capitals) == small);
    CHECK(runtime::holdsIgnoringCase("[" + capitals + "]", small));
}

TEST_CASE("a letter whose second byte looks like a capital is none") {
    if (platform::GetACP() != 932)
        return;
    CHECK(runtime::lowerCase("\x83"
                             "A\x83"
                             "C") == "\x83"
                                     "A\x83"
                                     "C");
    CHECK_FALSE(runtime::holdsIgnoringCase("\x83"
                                           "AB",
                                           "ab"));
}

TEST_CASE("every character of the code page comes back from UTF-16, others do not stand for themselves") {
    const bool utf8 = platform::GetACP() == platform::utf8CodePage;
    int characters = 0;
    for (unsigned first = 0; first < 256; ++first) {
        const char byte = static_cast<char>(first);
        if (!platform::IsDBCSLeadByte(byte)) {
            if (utf8 && first >= 0x80)
                CHECK(platform::toUtf16({&byte, 1}) == u"\uFFFD");
            else
                CHECK(comesBack({byte}));
            continue;
        }
        for (unsigned second = 0x40; second < 256; ++second)
            characters += comesBack({byte, static_cast<char>(second)}) ? 1 : 0;
    }
    if (platform::GetACP() == 932)
        CHECK(characters > 7000);
    CHECK(platform::toUtf16(western("a\xA7z")) == u"a\u00A7z");
    CHECK(codePageHas(u'\u4E2D') == (utf8 || platform::GetACP() == 932));
    CHECK(platform::toAnsi(u"x\u0E07y") == (utf8 ? "x\xE0\xB8\x87y" : "x?y"));
    CHECK(platform::toUtf16("").empty());
    CHECK(platform::toAnsi(u"").empty());
}

TEST_CASE("a character beyond the first 65536 is two units and one character") {
    if (platform::GetACP() != platform::utf8CodePage)
        return;
    CHECK(platform::toAnsi(u"a\U0001F600z") == "a\xF0\x9F\x98\x80z");
    CHECK(platform::toUtf16("a\xF0\x9F\x98\x80z") == u"a\U0001F600z");
    CHECK(runtime::characterCount("a\xF0\x9F\x98\x80z") == 3);
}

TEST_SUITE_END();
