#include "codePages.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"

#include <doctest/doctest.h>

using runtime::RuntimeError;

TEST_SUITE_BEGIN("runtime/text");

TEST_CASE("lower case folds letters and umlauts of the ANSI code page and nothing else") {
    CHECK(runtime::lowerCase("AZaz09 [Board]") == "azaz09 [board]");
    CHECK(runtime::lowerCase(western("\xC4\xD6\xDC\xE4\xDF")) == western("\xE4\xF6\xFC\xE4\xDF"));
    CHECK(runtime::lowerCase(western("\xD7\xF7")) == western("\xD7\xF7"));
    CHECK(runtime::lowerCase("") == "");
}

TEST_CASE("upper case is the way back, and a letter without capital stays") {
    CHECK(runtime::upperCase("AZaz09 [Board]:") == "AZAZ09 [BOARD]:");
    CHECK(runtime::upperCase(western("\xE4\xF6\xFC\xC4")) == western("\xC4\xD6\xDC\xC4"));
    if (codePageHas(u'\u00FF') && codePageHas(u'\u0178'))
        CHECK(runtime::upperCase(western("\xFF")) == western("\x9F"));
    if (codePageHas(u'\u00DF'))
        CHECK(runtime::upperCase(western("\xDF\xF7\xD7\x80")) == western("\xDF\xF7\xD7\x80"));
    // The last ones that have a capital.
    if (codePageHas(u'\u052F'))
        CHECK(runtime::upperCase("\xD4\xAF") == "\xD4\xAE");
    CHECK(runtime::upperCase("") == "");
}

TEST_CASE("trim takes blanks off both ends and leaves tabs") {
    CHECK(runtime::trim("  a b  ") == "a b");
    CHECK(runtime::trim("    ") == "");
    CHECK(runtime::trim("") == "");
    CHECK(runtime::trim(" \ta\t ") == "\ta\t");
}

TEST_CASE("a split text has one part more than it has marks") {
    CHECK(runtime::split("a,b,c", ",") == std::vector<std::string>{"a", "b", "c"});
    CHECK(runtime::split("", ",") == std::vector<std::string>{""});
    CHECK(runtime::split(",", ",") == std::vector<std::string>{"", ""});
    CHECK(runtime::split(western("path\xA7"
                                 "0\xA7"),
                         western("\xA7")) == std::vector<std::string>{"path", "0", ""});
}

TEST_CASE("an element that a split text lacks is a subscript error") {
    const auto parts = runtime::split("file", ",");
    CHECK(runtime::element(parts, 0) == "file");
    try {
        runtime::element(parts, 1);
        FAIL("no error");
    } catch (const RuntimeError& error) {
        CHECK(error.number == runtime::ErrorNumber::subscriptOutOfRange);
    }
}

TEST_CASE("every occurrence is replaced, exact in case, and what was put in is not looked at again") {
    CHECK(runtime::replaceAll("{a}x{a}", "{a}", "1") == "1x1");
    CHECK(runtime::replaceAll("{A}x", "{a}", "1") == "{A}x");
    CHECK(runtime::replaceAll("aa", "a", "aa") == "aaaa");
    CHECK(runtime::replaceAll("abc", "", "x") == "abc");
    CHECK(runtime::replaceAll("abc", "abc", "") == "");
}

TEST_CASE("a text ends at its first NUL") {
    CHECK(runtime::untilNul(std::string_view("ab\0cd", 5)) == "ab");
    CHECK(runtime::untilNul("ab") == "ab");
    CHECK(runtime::untilNul(std::string_view("\0", 1)) == "");
}

TEST_CASE("a text holds another one, ignoring its own case and folding umlauts") {
    CHECK(runtime::holdsIgnoringCase("My BOARD - x", "board -"));
    CHECK(runtime::holdsIgnoringCase(western("x\xC4\xD6\xDC"), western("\xE4\xF6\xFC")));
    CHECK(runtime::holdsIgnoringCase("board -", "board -"));
    CHECK(runtime::holdsIgnoringCase("bboboard -", "board -"));
    CHECK(runtime::holdsIgnoringCase("x", ""));
    CHECK_FALSE(runtime::holdsIgnoringCase("board", "board -"));
    CHECK_FALSE(runtime::holdsIgnoringCase("", "b"));
    CHECK_FALSE(runtime::holdsIgnoringCase("BOARD -", "Board -"));
}

TEST_SUITE_END();
