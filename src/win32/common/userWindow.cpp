#include "win32/common/userWindow.h"

#include <algorithm>
#include <array>

namespace win32 {

namespace {

/// Windows that the user has worked in, the last one first. As many as he is likely to close in a row.
std::array<HWND, 16> past{};

DWORD processOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

/// The task bar, the icons on it and what opens from it: windows of the shell without a title bar, which its
/// folders have, and the desktop itself is none of them.
bool isTaskBar(HWND window) {
    const HWND bar = FindWindowA("Shell_TrayWnd", nullptr);
    return bar != nullptr && processOf(window) == processOf(bar) && window != GetShellWindow() &&
           (GetWindowLongA(window, GWL_STYLE) & WS_CAPTION) != WS_CAPTION;
}

bool isThere(HWND window) {
    return IsWindowVisible(window) != FALSE && IsIconic(window) == FALSE;
}

bool isUsers(HWND window) {
    return isThere(window) && !isTaskBar(window);
}

void CALLBACK cameToFront(HWINEVENTHOOK /*hook*/, DWORD /*event*/, HWND window, LONG /*object*/,
                          LONG /*child*/, DWORD /*thread*/, DWORD /*time*/) {
    if (!isUsers(window))
        return;
    const auto place = std::find(past.begin(), past.end() - 1, window);
    *place = window;
    std::rotate(past.begin(), place, place + 1);
}

} // namespace

void followUser() {
    static HWINEVENTHOOK hook = nullptr;
    if (hook != nullptr)
        return;
    cameToFront(nullptr, 0, GetForegroundWindow(), 0, 0, 0, 0);
    // It is told through this thread's messages and lasts as long as the thread.
    hook = SetWinEventHook(EVENT_SYSTEM_FOREGROUND, EVENT_SYSTEM_FOREGROUND, nullptr, cameToFront, 0, 0,
                           WINEVENT_OUTOFCONTEXT);
}

HWND userWindow() {
    const HWND front = GetForegroundWindow();
    if (front != nullptr && isUsers(front))
        return front;
    const auto* const last = std::find_if(past.begin(), past.end(), isThere);
    return last == past.end() ? nullptr : *last;
}

} // namespace win32
