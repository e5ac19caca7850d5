// Windows of other programs that stand inside an editor window.
#pragma once
#include <windows.h>

namespace guests {

// Under Wine a window that paints itself, or is uncovered, wipes the windows of other programs inside it to
// black, and those are not told to paint. So it does where two windows of its own paint at a time and a guest
// stands between them: what Wine brings to the screen is the rectangle around both. Windows knows no such
// thing: there nothing is painted again, so that what is missing would be seen.

// To be told of every message of an editor window, after it has been handled.
void afterMessage(HWND window, UINT message, WPARAM wParam);

// To be told of each of an editor window's own children.
void besideOwn(HWND child);

} // namespace guests
