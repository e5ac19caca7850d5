#include "runtime/characters.h"

#include "codePages.h"
#include "runtime/text.h"

#include <doctest/doctest.h>

#include <string>
#include <string_view>
#include <utility>

TEST_SUITE_BEGIN("runtime/characters");

TEST_CASE("a text is as many characters as a reader counts") {
    CHECK(runtime::characterCount("") == 0);
    CHECK(runtime::characterCount("abc") == 3);
    CHECK(runtime::characterCount(western("a\xA7z")) == 3);
    CHECK(runtime::characterCount(treacherous()) == (platform::GetACP() == 932 ? 9 : 2));
    CHECK(runtime::characterSize("") == 0);
    CHECK(runtime::characterSize("a") == 1);
    CHECK(runtime::characterSize(western("\xA7")) == western("\xA7").size());
    CHECK(runtime::characterSize(std::string_view("\0a", 2)) == 1);
}

TEST_CASE("a mark is found where it is a character, not where it is a part of one") {
    const std::string text = treacherous();
    for (const std::string& mark : {western("\xA7"), std::string("\\"), std::string("|"), std::string("{"),
                                    std::string("}"), std::string("~"), std::string("^")}) {
        CHECK(runtime::findText(text, mark) == std::string::npos);
        CHECK(runtime::findText(text + mark + "x" + mark, mark) == text.size());
        CHECK(runtime::findLastText(mark + text + mark + text, mark) == text.size() + mark.size());
        CHECK_FALSE(runtime::endsInCharacter(text, mark));
        CHECK(runtime::endsInCharacter(text + mark, mark));
        CHECK(runtime::split(text + mark + text, mark) == std::vector<std::string>{text, text});
        CHECK(runtime::replaceAll(text + mark, mark, "-") == text + "-");
    }
    CHECK(runtime::findText("abcabc", "c", 3) == 5);
    CHECK(runtime::findText("abc", "abcd") == std::string::npos);
    CHECK(runtime::findText("abc", "") == 0);
    CHECK(runtime::findLastText("", "a") == std::string::npos);
}

TEST_CASE("a cut text ends with a whole character") {
    const std::string text = "a" + western("\xA7") + "z";
    CHECK(runtime::cutToSize(text, text.size()) == text);
    CHECK(runtime::cutToSize(text, text.size() - 1) == "a" + western("\xA7"));
    CHECK(runtime::cutToSize(text, text.size() - 2) == "a");
    CHECK(runtime::cutToSize(text, 1) == "a");
    CHECK(runtime::cutToSize(text, 0).empty());
    CHECK(runtime::sizeOfCharacters(text, 2) == text.size() - 1);
    CHECK(runtime::sizeOfCharacters(text, 9) == text.size());
}

TEST_CASE("of a text that was cut by bytes the whole characters stay") {
    const std::string text = "a" + treacherous();
    for (std::size_t size = 0; size <= text.size(); ++size)
        CHECK(runtime::withoutTornEnd(text.substr(0, size)) == runtime::cutToSize(text, size));
}

TEST_CASE("a code is a character's bytes, and the way back") {
    CHECK(runtime::characterCode("a") == 'a');
    CHECK(runtime::characterOfCode('a') == "a");
    CHECK(runtime::characterCode("\x83\\") == 0x835C);
    for (const std::string& character : {western("\xA7"), western("\xE4"), std::string("~")})
        CHECK(runtime::characterOfCode(runtime::characterCode(character)) == character);
}

TEST_CASE("bytes that are no character of UTF-8 count one each") {
    if (platform::GetACP() != platform::utf8CodePage)
        return;
    for (const char* const bytes : {"\x80z", "\xC0\x80", "\xC3z", "\xE0\x80\x80", "\xED\xA0\x80",
                                    "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE4\xBD"})
        CHECK_MESSAGE(runtime::characterSize(bytes) == 1, bytes);
    CHECK(runtime::characterSize("\xE4\xBD\xA0") == 3);
    for (const char* const bytes : {"\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80"})
        CHECK_MESSAGE(runtime::characterSize(bytes) == 3, bytes);
    for (const char* const bytes :
         {"\xF0\x90\x80\x80", "\xF1\x80\x80\x80", "\xF3\x80\x80\x80", "\xF4\x8F\xBF\xBF"})
        CHECK_MESSAGE(runtime::characterSize(bytes) == 4, bytes);
}

TEST_CASE("a character beyond 16 bits is one, and the way back") {
    if (platform::GetACP() != platform::utf8CodePage)
        return;
    for (const auto& [bytes, character] :
         {std::pair("\xF0\x90\x80\x80", U'\U00010000'), std::pair("\xF0\x9F\x90\xA6", U'\U0001F426'),
          std::pair("\xF4\x8F\xBF\xBF", U'\U0010FFFF'), std::pair("\xEF\xBF\xBD", U'\uFFFD')}) {
        const std::u32string around = {U'a', character, U'b'};
        CHECK(runtime::toUtf32("a" + std::string(bytes) + "b") == around);
        CHECK(runtime::fromUtf32(around) == "a" + std::string(bytes) + "b");
    }
}

TEST_CASE("the first byte of two stands alone before a NUL") {
    CHECK(runtime::characterSize(std::string_view("\x83\0", 2)) == 1);
}

TEST_CASE("a text of the program shows umlauts where the code page has them, the nearest letter where not") {
    const bool umlauts = codePageHas(u'\u00E4');
    CHECK(platform::toUtf16(western("Men\xFC \xD6"
                                    "ffnen Gr\xF6\xDF"
                                    "e \xC4")) ==
          (umlauts ? u"Men\u00FC \u00D6ffnen Gr\u00F6\u00DFe \u00C4" : u"Menu Offnen Grosse A"));
    CHECK(umlauts == (platform::GetACP() != 1251 && platform::GetACP() != 932));
    CHECK(platform::toUtf16(western("\xA7")) == u"\u00A7");
    CHECK(western("") == "");
}

TEST_SUITE_END();
