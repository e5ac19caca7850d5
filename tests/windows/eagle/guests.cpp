#include "eagle/guests.h"

namespace guests {

static constexpr UINT_PTR repaintTimer = 1;
static constexpr UINT repaintDelay = 50; // milliseconds, so that the window's own painting is over

static void repaintGuests(HWND window) {
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        DWORD process = 0;
        GetWindowThreadProcessId(child, &process);
        if (process != GetCurrentProcessId())
            RedrawWindow(child, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    }
}

void afterMessage(HWND window, UINT message, WPARAM wParam) {
    switch (message) {
    case WM_PAINT:
    case WM_ACTIVATE:
    case WM_WINDOWPOSCHANGED:
        SetTimer(window, repaintTimer, repaintDelay, nullptr);
        break;
    case WM_TIMER:
        if (wParam == repaintTimer) {
            KillTimer(window, repaintTimer);
            repaintGuests(window);
        }
        break;
    }
}

} // namespace guests
