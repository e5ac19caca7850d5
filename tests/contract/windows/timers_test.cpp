// Timers of a process that has all timers that the system allows it.
#include "contract/windows/importHook.h"
#include "contract/world.h"
#include "forms/timer.h"

#include <doctest/doctest.h>

#include <windows.h>

namespace {

using contract::World;

using Set = decltype(&SetTimer);

Set systemsOwn = nullptr;
int made = 0;
bool full = false;

/// Starts one anew that is there, and makes none while the process is full.
UINT_PTR WINAPI set(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC routine) {
    if (full && id == 0)
        return 0;
    made += id == 0 ? 1 : 0;
    return systemsOwn(window, id, milliseconds, routine);
}

struct Counted {
    contract::ImportHook hook{"SetTimer", &set, systemsOwn};
    int fired = 0;

    Counted() {
        REQUIRE(hook.original() != nullptr);
        made = 0;
        full = false;
    }
    void count(forms::Timer& timer) {
        timer.onTimer = [this] { ++fired; };
    }
    bool fires() {
        const int before = fired;
        return World::until([&] { return fired > before + 1; });
    }
};

} // namespace

TEST_SUITE_BEGIN("contract/windows/timers");

TEST_CASE("a timer that goes off and on again, or off for another one, needs none of the system's again") {
    const World world;
    Counted counted;
    forms::Timer tick(20);
    forms::Timer other(20);
    counted.count(tick);
    counted.count(other);
    tick.setEnabled(true);
    CHECK(counted.fires());
    full = true;
    for (forms::Timer* timer : {&tick, &other, &tick}) {
        tick.setEnabled(false);
        other.setEnabled(false);
        timer->setEnabled(true);
        CHECK(counted.fires());
        timer->setInterval(10);
        CHECK(counted.fires());
    }
}

TEST_CASE("timers that come and go do not add up, and one that is gone fires no more") {
    const World world;
    Counted counted;
    for (int time = 0; time < 100; ++time) {
        forms::Timer timer(1, true);
        counted.count(timer);
    }
    CHECK(made <= 1);
    forms::Timer last(20, true);
    int fired = 0;
    last.onTimer = [&fired] { ++fired; };
    CHECK(World::until([&] { return fired > 1; }));
    CHECK(counted.fired == 0);
}

TEST_SUITE_END();
