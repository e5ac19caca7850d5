#include "platform/screen.h"

#include "win32/common/views.h"

#include <windows.h>

using win32::ownView;
using win32::Seeing;

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

void resetMousePointer() {
    SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)));
}

} // namespace platform
