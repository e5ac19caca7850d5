#include "platform/screen.h"

#include "win32/common/systemLibrary.h"
#include "win32/common/views.h"

#include <windows.h>

using win32::ownView;
using win32::Seeing;

namespace {

/// That a program sees one of all its screens: it knew no other before Windows 8.1.
int dpiOfAllScreens() {
    const ::HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi;
}

} // namespace

namespace platform {

int screenWidth() {
    const Seeing seen(ownView());
    return GetSystemMetrics(SM_CXSCREEN);
}

int screenHeight() {
    const Seeing seen(ownView());
    return GetSystemMetrics(SM_CYSCREEN);
}

RECT workArea() {
    const Seeing seen(ownView());
    ::RECT area{};
    if (SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0) == FALSE)
        return {0, 0, screenWidth(), screenHeight()};
    return {area.left, area.top, area.right, area.bottom};
}

RECT workAreaAt(const RECT& place) {
    const Seeing seen(ownView());
    const ::RECT asked{place.left, place.top, place.right, place.bottom};
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    if (GetMonitorInfoA(MonitorFromRect(&asked, MONITOR_DEFAULTTONEAREST), &screen) == FALSE)
        return workArea();
    return {screen.rcWork.left, screen.rcWork.top, screen.rcWork.right, screen.rcWork.bottom};
}

int screenDpi() {
    using DpiOfScreen = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
    // Windows 7 has none, and is asked again at each form that comes up.
    static DpiOfScreen dpiOfScreen = nullptr;
    if (dpiOfScreen == nullptr)
        dpiOfScreen = win32::routineOf<DpiOfScreen>(win32::systemLibrary(L"shcore.dll"), "GetDpiForMonitor");
    constexpr int effective = 0; // MDT_EFFECTIVE_DPI
    const Seeing seen(ownView());
    UINT across = 0;
    UINT down = 0;
    if (dpiOfScreen == nullptr ||
        FAILED(dpiOfScreen(MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), effective, &across, &down)))
        return dpiOfAllScreens();
    return static_cast<int>(across);
}

void resetMousePointer() {
    SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)));
}

} // namespace platform
