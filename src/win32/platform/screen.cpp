#include "platform/screen.h"

#include "forms/units.h"

#include <windows.h>

namespace platform {

int screenWidth() {
    return GetSystemMetrics(SM_CXSCREEN);
}

int screenHeight() {
    return GetSystemMetrics(SM_CYSCREEN);
}

RECT workArea() {
    ::RECT area{};
    if (SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0) == FALSE)
        return {0, 0, screenWidth(), screenHeight()};
    return {area.left, area.top, area.right, area.bottom};
}

void resetMousePointer() {
    SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)));
}

double twipsPerPixelX() {
    return forms::twipsPerPixel;
}

} // namespace platform
