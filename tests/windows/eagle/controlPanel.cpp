#include "eagle/controlPanel.h"
#include "common/journal.h"
#include "eagle/kinds.h"

#include <windows.h>

#include <string>

namespace controlPanel {

static constexpr wchar_t className[] = L"EagleControlPanel";

static void paint(HDC dc) {
    static constexpr const wchar_t* branches[] = {
        L"+ Libraries", L"+ Design Rules", L"+ User Language Programs", L"+ Scripts",
        L"+ CAM Jobs",  L"- Projects",     L"     + examples",          L"     - demo"};
    SetBkMode(dc, TRANSPARENT);
    const HGDIOBJ oldFont = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    int y = 8;
    for (const wchar_t* branch : branches) {
        TextOutW(dc, 10, y, branch, lstrlenW(branch));
        y += 18;
    }
    SelectObject(dc, oldFont);
}

static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT: {
        PAINTSTRUCT area;
        paint(BeginPaint(window, &area));
        EndPaint(window, &area);
        return 0;
    }
    case WM_DESTROY:
        journal::write("closed", {L"0"});
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

void open() {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = windowProc;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    windowClass.lpszClassName = className;
    RegisterClassW(&windowClass);

    const std::wstring title = std::wstring(L"Control Panel - ") + kinds::productName;
    const HWND window = CreateWindowExW(0, className, title.c_str(), WS_OVERLAPPEDWINDOW, 10, 10, 360, 260,
                                        nullptr, nullptr, windowClass.hInstance, nullptr);
    ShowWindow(window, SW_SHOWNORMAL);
    UpdateWindow(window);
    journal::write("opened", {L"0", L"panel", std::to_wstring(reinterpret_cast<UINT_PTR>(window)), title});
}

} // namespace controlPanel
