// Tool tips of ordinary controls.
#pragma once

#include <windows.h>

#include <string>

namespace win32 {

/// Shows a text beside the mouse while it rests over a window of this thread. An empty text takes the tip
/// away, which has to happen before the window is gone for good.
void setToolTip(HWND window, const std::string& text);

} // namespace win32
