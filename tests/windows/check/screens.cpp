#include "check/screens.h"
#include "check/machine.h"

namespace screens {

// Windows 8.1 and later know one for each screen.
static int dpiOf(HMONITOR monitor) {
    using GetDpi = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
    UINT x = 0;
    UINT y = 0;
    if (const auto getDpi = machine::routine<GetDpi>(L"shcore.dll", "GetDpiForMonitor");
        getDpi && getDpi(monitor, 0, &x, &y) == S_OK)
        return static_cast<int>(x);
    const HDC dc = GetDC(nullptr);
    const int dpi = GetDeviceCaps(dc, LOGPIXELSX);
    ReleaseDC(nullptr, dc);
    return dpi;
}

static BOOL CALLBACK collect(HMONITOR monitor, HDC, RECT*, LPARAM list) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    GetMonitorInfoW(monitor, &info);
    reinterpret_cast<std::vector<Screen>*>(list)->push_back(
        {info.rcMonitor, info.rcWork, dpiOf(monitor), (info.dwFlags & MONITORINFOF_PRIMARY) != 0});
    return TRUE;
}

std::vector<Screen> all() {
    std::vector<Screen> found;
    EnumDisplayMonitors(nullptr, nullptr, collect, reinterpret_cast<LPARAM>(&found));
    return found;
}

Screen primary() {
    for (const Screen& screen : all()) {
        if (screen.primary)
            return screen;
    }
    return {{0, 0, 800, 600}, {0, 0, 800, 600}, 96, true};
}

RECT plainWorkArea() {
    const Screen screen = primary();
    const auto plain = [&screen](LONG pixels) { return MulDiv(pixels, 96, screen.dpi); };
    return {plain(screen.work.left), plain(screen.work.top), plain(screen.work.right),
            plain(screen.work.bottom)};
}

} // namespace screens
