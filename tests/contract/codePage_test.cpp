// The ANSI code page of the world: Windows-1252.
#include "platform/codePage.h"

#include "runtime/text.h"

#include <doctest/doctest.h>

#include <numeric>
#include <string>

namespace {

std::string allCharacters() {
    std::string all(256, '\0');
    std::iota(all.begin(), all.end(), '\0');
    return all;
}

} // namespace

TEST_SUITE_BEGIN("contract/codePage");

TEST_CASE("a lower-case text folds the letters of the code page and leaves the rest") {
    const std::string all = allCharacters();
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

TEST_CASE("every character of the code page comes back from UTF-16, others become question marks") {
    const std::string all = allCharacters();
    CHECK(platform::toAnsi(platform::toUtf16(all)) == all);
    CHECK(platform::toUtf16("a\xE4\x80") == u"a\u00E4\u20AC");
    CHECK(platform::toAnsi(u"x\u4E2Dy") == "x?y");
    CHECK(platform::toUtf16("").empty());
    CHECK(platform::toAnsi(u"").empty());
}

TEST_SUITE_END();
