// Timers: the platform's own, one for each of ours that is on.
#include "forms/peer.h"
#include "forms/timer.h"

#include "runtime/guard.h"

#include <windows.h>

#include <algorithm>
#include <vector>

namespace {

struct Running {
    UINT_PTR id;
    forms::Timer* timer;
};

std::vector<Running>& running() {
    static std::vector<Running> all;
    return all;
}

void CALLBACK elapsed(HWND /*window*/, UINT /*message*/, UINT_PTR id, DWORD /*time*/) {
    const auto found = std::find_if(running().begin(), running().end(),
                                    [id](const Running& state) { return state.id == id; });
    if (found == running().end())
        return;
    forms::Timer* const timer = found->timer;
    runtime::guarded([timer] { timer->elapsed(); });
}

} // namespace

namespace forms {

void timerChanged(Timer& timer) {
    std::erase_if(running(), [&timer](const Running& state) {
        if (state.timer != &timer)
            return false;
        KillTimer(nullptr, state.id);
        return true;
    });
    if (timer.enabled() && timer.interval() > 0)
        if (const UINT_PTR id = SetTimer(nullptr, 0, static_cast<UINT>(timer.interval()), elapsed); id != 0)
            running().push_back({id, &timer});
}

} // namespace forms
