#include "forms/units.h"

#include <doctest/doctest.h>

using forms::Resolution;

TEST_SUITE_BEGIN("forms/units");

TEST_CASE("without being told a form has the design's 15 twips a pixel") {
    CHECK(Resolution().dpi() == 96);
    CHECK(Resolution().toPixels(15) == 1);
    CHECK(Resolution().toTwips(7) == 105);
}

TEST_CASE("twips become the nearest pixel, halves the farther one") {
    CHECK(Resolution().toPixels(7.4F) == 0);
    CHECK(Resolution().toPixels(7.5F) == 1);
    CHECK(Resolution().toPixels(-7.5F) == -1);
    CHECK(Resolution(144).toPixels(1804) == 180);
    CHECK(Resolution(144).toPixels(1805) == 181);
}

TEST_CASE("pixels become twips and the same pixels again at every resolution") {
    for (int dpi = 96; dpi <= 480; ++dpi)
        for (int pixels = -3000; pixels <= 3000; pixels += 7) {
            const Resolution resolution(dpi);
            REQUIRE(resolution.toPixels(resolution.toTwips(pixels)) == pixels);
        }
}

TEST_CASE("at 144 dpi a pixel is 10 twips, at 240 it is 6") {
    CHECK(Resolution(144).toTwips(3) == 30);
    CHECK(Resolution(240).toTwips(3) == 18);
}

TEST_CASE("a number of the design's pixels is scaled to the nearest, halves up") {
    CHECK(Resolution(96).scaled(23) == 23);
    CHECK(Resolution(120).scaled(23) == 29); // 28.75
    CHECK(Resolution(144).scaled(25) == 38); // 37.5
    CHECK(Resolution(168).scaled(16) == 28);
    CHECK(Resolution(480).scaled(16) == 80);
}

TEST_CASE("what no screen has counts as the nearest that there is") {
    for (const int dpi : {0, 1, 95, -1, -2147483647})
        CHECK(Resolution(dpi) == Resolution(96));
    CHECK(Resolution(480).dpi() == 480);
    CHECK(Resolution(481) == Resolution(480));
    CHECK(Resolution(2147483647) == Resolution(480));
}

TEST_SUITE_END();
