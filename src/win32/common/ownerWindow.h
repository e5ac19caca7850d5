// The window that stands behind all that is not in another program's window.
#pragma once

#include <windows.h>

namespace win32 {

/// The program's hidden window, which owns its message boxes, its dialogs and the forms that the task bar is
/// not to show; null before the start.
HWND ownerWindow();

} // namespace win32
