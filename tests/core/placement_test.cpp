#include "core/placement.h"

#include <doctest/doctest.h>

using core::calculatorLeft;
using core::placeToolbar;

TEST_SUITE_BEGIN("core/placement");

TEST_CASE("a toolbar of 200 pixels stands at x 799 in a host of 1024") {
    CHECK(placeToolbar(1024, 3000, 630, 15) == core::ToolbarPlace{799, 21, 200, 630});
}

TEST_CASE("the toolbar's width in pixels is cut, not rounded") {
    CHECK(placeToolbar(1024, 3014, 630, 15).width == 200);
    CHECK(placeToolbar(1024, 3015, 630, 15).width == 201);
}

TEST_CASE("the toolbar's width and height in twips are rounded first, halves to even") {
    CHECK(placeToolbar(1024, 3014.5F, 630.5F, 15).width == 200);
    CHECK(placeToolbar(1024, 3014.5F, 630.5F, 15).height == 630);
    CHECK(placeToolbar(1024, 3014.6F, 631.5F, 15).width == 201);
    CHECK(placeToolbar(1024, 3014.6F, 631.5F, 15).height == 632);
}

TEST_CASE("a host narrower than the toolbar puts it left of the client area") {
    CHECK(placeToolbar(100, 3000, 630, 15).x == -125);
}

TEST_CASE("the calculator follows a host wider than 700 pixels") {
    CHECK(calculatorLeft(1024, true, 15) == 12360);
    CHECK(calculatorLeft(701, true, 15) == 7515);
}

TEST_CASE("at or below 700 pixels, or without an index, the calculator keeps the place for 700") {
    CHECK(calculatorLeft(700, true, 15) == 7500);
    CHECK(calculatorLeft(600, true, 15) == 7500);
    CHECK(calculatorLeft(0, true, 15) == 7500);
    CHECK(calculatorLeft(1024, false, 15) == 7500);
}

TEST_CASE("the calculator's place is computed in floating point") {
    CHECK(calculatorLeft(1001, true, 14.4) == doctest::Approx(11414.4));
}

TEST_SUITE_END();
