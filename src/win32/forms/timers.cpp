// Timers: one of the platform's for each of ours that is on.
#include "forms/peer.h"
#include "forms/timer.h"

#include "runtime/guard.h"

#include <windows.h>

#include <algorithm>
#include <vector>

namespace {

/// One of the platform's timers. It is never given back: a process that has all that the system allows it
/// would get no other one, and the tick, which is off while a request is handled, would not go on.
struct Clock {
    UINT_PTR id;
    forms::Timer* timer; ///< whose it is; null while no timer of ours needs it
};

std::vector<Clock>& clocks() {
    static std::vector<Clock> all;
    return all;
}

std::vector<Clock>::iterator clockOf(const forms::Timer* timer) {
    return std::ranges::find(clocks(), timer, &Clock::timer);
}

void CALLBACK elapsed(HWND /*window*/, UINT /*message*/, UINT_PTR id, DWORD /*time*/) {
    const auto found = std::ranges::find(clocks(), id, &Clock::id);
    if (found == clocks().end() || found->timer == nullptr)
        return;
    forms::Timer* const timer = found->timer;
    runtime::guarded([timer] { timer->elapsed(); });
}

/// Begins a whole new interval, with a clock of the platform's that is new if the id is 0. False if it
/// refuses.
bool start(Clock& clock, UINT milliseconds) {
    const UINT_PTR id = SetTimer(nullptr, clock.id, milliseconds, elapsed);
    if (id != 0)
        clock.id = id;
    return id != 0;
}

} // namespace

namespace forms {

void timerChanged(Timer& timer) {
    if (const auto had = clockOf(&timer); had != clocks().end()) {
        had->timer = nullptr;
        start(*had, USER_TIMER_MAXIMUM);
    }
    if (!timer.enabled() || timer.interval() <= 0)
        return;
    const auto interval = static_cast<UINT>(timer.interval());
    if (const auto idle = clockOf(nullptr); idle != clocks().end()) {
        idle->timer = &timer;
        start(*idle, interval);
    } else if (Clock made{0, &timer}; start(made, interval))
        clocks().push_back(made);
}

} // namespace forms
