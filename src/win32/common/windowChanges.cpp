#include "win32/common/windowChanges.h"

#include "win32/common/native.h"

namespace win32 {

namespace {

void changeStyle(HWND window, DWORD clear, DWORD set) {
    const auto style = static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
    SetWindowLongA(window, GWL_STYLE, static_cast<LONG>((style & ~clear) | set));
}

} // namespace

void activateWindow(HWND window) {
    SetForegroundWindow(window);
}

void focusWindow(HWND window) {
    SetFocus(window);
}

bool raiseWindow(HWND window) {
    if (!isForeign(window))
        return BringWindowToTop(window) != FALSE;
    if (IsWindow(window) == FALSE)
        return false;
    // The click that brought us here gives us the right to choose the window in front.
    if (answers(window))
        SetForegroundWindow(window);
    return SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_ASYNCWINDOWPOS) != FALSE;
}

bool showWindow(HWND window, int command) {
    return (isForeign(window) ? ShowWindowAsync(window, command) : ShowWindow(window, command)) != FALSE;
}

void showInPlace(HWND window) {
    SetWindowPos(window, nullptr, 0, 0, 0, 0,
                 SWP_SHOWWINDOW | SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER);
}

HWND putInto(HWND window, HWND parent) {
    // The styles must fit before the window goes in and after it has come out.
    if (parent != nullptr) {
        if (IsWindow(parent) == FALSE)
            return nullptr;
        changeStyle(window, WS_POPUP, WS_CHILD);
    }
    const HWND former = SetParent(window, parent);
    const bool refused = former == nullptr && parent != nullptr;
    if (parent == nullptr || refused)
        changeStyle(window, WS_CHILD, WS_POPUP);
    return former;
}

void destroyWindow(HWND window) {
    DestroyWindow(window);
}

} // namespace win32
