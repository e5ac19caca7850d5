// The system's themes. Their library is not one that every program has in it: bound statically it would be
// looked for beside the program first.
#pragma once

#include <windows.h>

#include <uxtheme.h>

namespace win32 {

/// The theme's drawings for a class of controls; null without themes. To be closed.
HTHEME openTheme(HWND window, const wchar_t* className);
void closeTheme(HTHEME theme);
/// False if nothing has been drawn.
bool drawThemed(HTHEME theme, HDC dc, int part, int state, const RECT& area);
/// Gives a control the look that it has in another program's windows.
void setTheme(HWND window, const wchar_t* program);

} // namespace win32
