// Timers and pop-up menus.
#include "forms/menu.h"
#include "forms/timer.h"

#include "desktop/desktop.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <memory>
#include <vector>

TEST_SUITE_BEGIN("forms/timerMenu");

TEST_CASE("a timer fires again and again while it is on and its interval is above 0") {
    const desktop::Session session;
    forms::Timer timer(200);
    int fired = 0;
    timer.onTimer = [&] { ++fired; };
    desktop::world().run(1000);
    CHECK(fired == 0);
    timer.setEnabled(true);
    desktop::world().run(199);
    CHECK(fired == 0);
    desktop::world().run(801);
    CHECK(fired == 5);
    timer.setInterval(0);
    desktop::world().run(1000);
    CHECK(fired == 5);
    timer.setInterval(500);
    desktop::world().run(1000);
    CHECK(fired == 7);
    timer.setEnabled(false);
    desktop::world().run(1000);
    CHECK(fired == 7);
}

TEST_CASE("switching on a timer that is on does not start its interval anew; another interval does") {
    const desktop::Session session;
    forms::Timer timer(200, true);
    int fired = 0;
    timer.onTimer = [&] { ++fired; };
    desktop::world().run(150);
    timer.setEnabled(true);
    desktop::world().run(50);
    CHECK(fired == 1);
    desktop::world().run(150);
    timer.setInterval(200);
    desktop::world().run(199);
    CHECK(fired == 1);
    desktop::world().run(1);
    CHECK(fired == 2);
}

TEST_CASE("a timer that switches itself off fires once") {
    const desktop::Session session;
    forms::Timer timer(50, true);
    int fired = 0;
    timer.onTimer = [&] {
        timer.setEnabled(false);
        ++fired;
    };
    desktop::world().run(1000);
    CHECK(fired == 1);
}

TEST_CASE("a call that was under way when the timer was switched off raises nothing") {
    const desktop::Session session;
    forms::Timer timer(50, true);
    int fired = 0;
    timer.onTimer = [&] { ++fired; };
    timer.setEnabled(false);
    timer.elapsed();
    timer.setEnabled(true);
    timer.setInterval(0);
    timer.elapsed();
    CHECK(fired == 0);
}

TEST_CASE("a timer that is destroyed fires no more") {
    const desktop::Session session;
    auto timer = std::make_unique<forms::Timer>(50, true);
    timer.reset();
    CHECK(desktop::world().timers.empty());
    CHECK_THROWS_AS(forms::Timer(-1), runtime::RuntimeError);
}

TEST_CASE("the click of a menu is given the index of the chosen entry, separators and the like aside") {
    forms::Menu menu;
    menu.items = {{0, "&Info"}, {2, "-"}, {3, "&EAGLE"}, {4, "off", false}, {5, "hidden", true, false}};
    std::vector<int> chosen;
    menu.onClick = [&](int index) {
        chosen.push_back(index);
        menu.items.clear();
    };
    for (const int index : {2, 4, 5, 9, -1, 3, 0})
        menu.choose(index);
    CHECK(chosen == std::vector<int>{3});
}

TEST_SUITE_END();
