// A plain program with an icon in the tray, beside which the start of the finished program and its memory are
// measured: a window that is shown for two seconds, another one, the icon, and a message loop.
#include "plainWindow.h"

#include <windows.h>

#include <shellapi.h>

int WINAPI WinMain(HINSTANCE instance, HINSTANCE /*previous*/, LPSTR /*commandLine*/, int /*show*/) {
    showPlainWindow();
    const HWND window =
        CreateWindowExA(0, "EDIT", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, instance, nullptr);
    NOTIFYICONDATAA record{};
    record.cbSize = NOTIFYICONDATAA_V1_SIZE;
    record.hWnd = window;
    record.uID = 2;
    record.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    record.uCallbackMessage = WM_APP;
    record.hIcon =
        static_cast<HICON>(LoadImageA(instance, MAKEINTRESOURCEA(1), IMAGE_ICON, 16, 16, LR_SHARED));
    lstrcpynA(record.szTip, "A tray icon", sizeof record.szTip);
    Shell_NotifyIconA(NIM_ADD, &record);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    return 0;
}
