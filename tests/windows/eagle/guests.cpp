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

static void repaintSoon(HWND window) {
    static const bool wine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    if (wine)
        SetTimer(window, repaintTimer, repaintDelay, nullptr);
}

// Where a child keeps the procedure that it came with.
static constexpr wchar_t procedureProperty[] = L"EagleProcedure";

static LRESULT CALLBACK ownProc(HWND child, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto procedure = reinterpret_cast<WNDPROC>(GetPropW(child, procedureProperty));
    if (message == WM_NCDESTROY)
        RemovePropW(child, procedureProperty);
    const LRESULT result = CallWindowProcW(procedure, child, message, wParam, lParam);
    if (message == WM_PAINT || message == WM_SETTEXT) // some controls paint a new text at once
        repaintSoon(GetParent(child));
    return result;
}

void besideOwn(HWND child) {
    const LONG_PTR procedure = GetWindowLongPtrW(child, GWLP_WNDPROC);
    if (SetPropW(child, procedureProperty, reinterpret_cast<HANDLE>(procedure)))
        SetWindowLongPtrW(child, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ownProc));
}

void afterMessage(HWND window, UINT message, WPARAM wParam) {
    switch (message) {
    case WM_PAINT:
    case WM_ACTIVATE:
    case WM_WINDOWPOSCHANGED:
        repaintSoon(window);
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
