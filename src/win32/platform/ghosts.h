// The pictures that the system shows in place of windows that hang.
#pragma once

#include <windows.h>

namespace win32 {

/// Whether a top-level window is one. Cheap for a window that has been asked about before.
bool isGhost(HWND window);

} // namespace win32
