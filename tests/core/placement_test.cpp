#include "core/placement.h"

#include <doctest/doctest.h>

using core::calculatorLeft;
using core::placeToolbar;
using core::ToolbarPlace;

constexpr forms::Resolution atDesign;

TEST_SUITE_BEGIN("core/placement");

TEST_CASE("a toolbar of 200 pixels stands at x 799 in a host of 1024") {
    CHECK(placeToolbar(1024, 3000, 630, atDesign) == ToolbarPlace{799, 21, 200, 630});
}

TEST_CASE("the toolbar's width in pixels is cut, not rounded") {
    CHECK(placeToolbar(1024, 3014, 630, atDesign).width == 200);
    CHECK(placeToolbar(1024, 3015, 630, atDesign).width == 201);
}

TEST_CASE("the toolbar's width and height in twips are rounded first, halves to even") {
    CHECK(placeToolbar(1024, 3014.5F, 630.5F, atDesign).width == 200);
    CHECK(placeToolbar(1024, 3014.5F, 630.5F, atDesign).height == 630);
    CHECK(placeToolbar(1024, 3014.6F, 631.5F, atDesign).width == 201);
    CHECK(placeToolbar(1024, 3014.6F, 631.5F, atDesign).height == 632);
}

TEST_CASE("a host narrower than the toolbar puts it left of the client area") {
    CHECK(placeToolbar(100, 3000, 630, atDesign).x == -125);
}

TEST_CASE("the calculator follows a host wider than 700 pixels") {
    CHECK(calculatorLeft(1024, true, atDesign) == 12360);
    CHECK(calculatorLeft(701, true, atDesign) == 7515);
}

TEST_CASE("at or below 700 pixels, or without an index, the calculator keeps the place for 700") {
    CHECK(calculatorLeft(700, true, atDesign) == 7500);
    CHECK(calculatorLeft(600, true, atDesign) == 7500);
    CHECK(calculatorLeft(0, true, atDesign) == 7500);
    CHECK(calculatorLeft(1024, false, atDesign) == 7500);
}

TEST_CASE("at 144 dpi, 10 twips a pixel, gaps and widths are half as many pixels again") {
    // 3000 twips are 300 pixels; 25 are 37.5 and 21 are 31.5 pixels, rounded up.
    CHECK(placeToolbar(1536, 3000, 630, forms::Resolution(144)) == ToolbarPlace{1198, 32, 300, 630});
    // 700 pixels are 1050 there.
    CHECK(calculatorLeft(1536, true, forms::Resolution(144)) == 12360);
    CHECK(calculatorLeft(1051, true, forms::Resolution(144)) == 7510);
    CHECK(calculatorLeft(1050, true, forms::Resolution(144)) == 7500);
    CHECK(calculatorLeft(701, true, forms::Resolution(144)) == 7500);
    CHECK(calculatorLeft(1536, false, forms::Resolution(144)) == 7500);
}

TEST_CASE("at any number of dots to the inch they are that many 96ths") {
    CHECK(placeToolbar(1280, 3000, 630, forms::Resolution(120)) == ToolbarPlace{999, 26, 250, 630});
    // 43.75 and 36.75 pixels.
    CHECK(placeToolbar(1792, 3000, 630, forms::Resolution(168)) == ToolbarPlace{1398, 37, 350, 630});
    CHECK(placeToolbar(2048, 3000, 630, forms::Resolution(192)) == ToolbarPlace{1598, 42, 400, 630});
    // 62.5 and 52.5 pixels.
    CHECK(placeToolbar(2560, 3000, 630, forms::Resolution(240)) == ToolbarPlace{1997, 53, 500, 630});
    for (const int dpi : {120, 168, 192, 240, 480}) {
        const forms::Resolution resolution(dpi);
        CHECK(calculatorLeft(1024 * dpi / 96, true, resolution) == 12360);
        CHECK(calculatorLeft(700 * dpi / 96, true, resolution) == 7500);
    }
}

TEST_CASE("the width in pixels is the form's own, whatever fraction of a twip it has lost") {
    for (const int dpi : {96, 97, 120, 125, 144, 168, 192, 216, 240, 480})
        for (int width = 1; width < 3000; ++width) {
            const forms::Resolution resolution(dpi);
            REQUIRE(placeToolbar(0, resolution.toTwips(width), 0, resolution).width == width);
        }
}

TEST_CASE("the toolbar stands below the calculator on every screen") {
    constexpr float calculatorHeight = 270; // twips
    for (int dpi = 96; dpi <= 480; ++dpi) {
        const forms::Resolution resolution(dpi);
        CHECK(placeToolbar(1024, 1800, 300, resolution).y >= resolution.toPixels(calculatorHeight));
    }
}

TEST_CASE("the calculator's place is computed in floating point") {
    CHECK(calculatorLeft(1001, true, forms::Resolution(100)) == doctest::Approx(11414.4));
}

TEST_SUITE_END();
