// Windows of other programs that stand inside an editor window.
#pragma once
#include <windows.h>

namespace guests {

// To be told of every message of an editor window, after it has been handled.
//
// Under Wine a window that paints itself, or is uncovered, wipes the windows of other programs inside it to
// black, and those are not told to paint. Windows knows no such thing: there the extra painting is not seen.
void afterMessage(HWND window, UINT message, WPARAM wParam);

} // namespace guests
