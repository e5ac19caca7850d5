// What a plain program shows when it starts, where Kestrel shows its splash.
#pragma once

#include <windows.h>

/// An empty window of the splash's size, active and in front, for as long as the splash stays.
inline void showPlainWindow() {
    constexpr UINT stays = 2000; // milliseconds
    const HWND window =
        CreateWindowExA(WS_EX_TOOLWINDOW, "STATIC", "", WS_POPUP | WS_BORDER | WS_VISIBLE, 598, 503, 404, 193,
                        nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    SetForegroundWindow(window);
    const UINT_PTR timer = SetTimer(window, 1, stays, nullptr);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0 &&
           (message.message != WM_TIMER || message.wParam != timer))
        DispatchMessageA(&message);
    DestroyWindow(window);
}
