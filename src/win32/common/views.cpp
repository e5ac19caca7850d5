#include "win32/common/views.h"

#include "win32/common/systemLibrary.h"

namespace win32 {

namespace {

/// The system's routines, each null where it has none. The views came with all of them.
struct Routines {
    HMODULE user = systemLibrary(L"user32.dll");
    View(WINAPI* viewOfWindow)(HWND) = routineOf<decltype(viewOfWindow)>(user,
                                                                         "GetWindowDpiAwarenessContext");
    View(WINAPI* viewOfThread)() = routineOf<decltype(viewOfThread)>(user, "GetThreadDpiAwarenessContext");
    View(WINAPI* enter)(View) = routineOf<decltype(enter)>(user, "SetThreadDpiAwarenessContext");
    UINT(WINAPI* dpiOfWindow)(HWND) = routineOf<decltype(dpiOfWindow)>(user, "GetDpiForWindow");
    BOOL(WINAPI* addFrame)
    (RECT*, DWORD, BOOL, DWORD, UINT) = routineOf<decltype(addFrame)>(user, "AdjustWindowRectExForDpi");

    bool complete() const {
        return viewOfWindow != nullptr && viewOfThread != nullptr && enter != nullptr &&
               dpiOfWindow != nullptr && addFrame != nullptr;
    }
};

const Routines& routines() {
    static const Routines found;
    return found;
}

} // namespace

View viewOf(HWND window) {
    return routines().complete() ? routines().viewOfWindow(window) : nullptr;
}

View ownView() {
    // The first question comes before the first change.
    static const View own = routines().complete() ? routines().viewOfThread() : nullptr;
    return own;
}

View enter(View view) {
    return view == nullptr || ownView() == nullptr ? nullptr : routines().enter(view);
}

int dpiOf(HWND window) {
    if (routines().complete())
        return static_cast<int>(routines().dpiOfWindow(window)); // 0 for a dead one
    if (IsWindow(window) == FALSE)
        return 0;
    // All windows see the same, and so does this one of ours.
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi;
}

void addFrame(RECT& area, DWORD style, DWORD exStyle, int dpi) {
    if (routines().complete())
        routines().addFrame(&area, style, FALSE, exStyle, static_cast<UINT>(dpi));
    else
        AdjustWindowRectEx(&area, style, FALSE, exStyle);
}

} // namespace win32
