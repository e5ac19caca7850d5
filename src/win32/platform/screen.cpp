#include "platform/screen.h"

#include <windows.h>

namespace platform {

int screenWidth() {
    return GetSystemMetrics(SM_CXSCREEN);
}

int screenHeight() {
    return GetSystemMetrics(SM_CYSCREEN);
}

void resetMousePointer() {
    SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)));
}

} // namespace platform
