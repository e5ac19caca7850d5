// Where a form stands that is to be in the middle of the screen.
#include "forms/form.h"

#include "desktop/desktop.h"

#include <doctest/doctest.h>

TEST_SUITE_BEGIN("forms/centring");

TEST_CASE("a centred form stands in the middle of the screen when it is loaded") {
    const desktop::Session session;
    forms::Form form;
    form.centreOnScreen = true;
    form.load();
    platform::RECT rect = desktop::world().window(form.hWnd()).rect;
    // Of the whole screen: what the task bar takes does not move it.
    CHECK(rect.left == (1280 - (rect.right - rect.left)) / 2);
    CHECK(rect.top == (1024 - (rect.bottom - rect.top)) / 2);
    form.setLeft(150);
    rect = desktop::world().window(form.hWnd()).rect;
    CHECK(rect.left == 10);
}

TEST_CASE("a centred form is moved as far as the work area needs it, and no farther") {
    /// The outer rectangle of a form of 600 by 500 pixels on a screen of 1280 by 1024 with this work area.
    const auto placed = [](const platform::RECT& workArea) {
        const desktop::Session session;
        desktop::world().workArea = workArea;
        forms::Form form;
        form.centreOnScreen = true;
        form.setPosition({0, 0, 600 * 15, 500 * 15});
        form.load();
        return desktop::world().window(form.hWnd()).rect;
    };
    CHECK(placed({0, 0, 1280, 984}) == platform::RECT{340, 262, 940, 762});
    CHECK(placed({0, 262, 940, 762}) == platform::RECT{340, 262, 940, 762});
    // A bar on each of the sides.
    CHECK(placed({400, 0, 1280, 1024}) == platform::RECT{400, 262, 1000, 762});
    CHECK(placed({0, 300, 1280, 1024}) == platform::RECT{340, 300, 940, 800});
    CHECK(placed({0, 0, 900, 1024}) == platform::RECT{300, 262, 900, 762});
    CHECK(placed({0, 0, 1280, 700}) == platform::RECT{340, 200, 940, 700});
    // Too small: the title bar stays in reach.
    CHECK(placed({500, 400, 900, 600}) == platform::RECT{500, 400, 1100, 900});
}

TEST_SUITE_END();
