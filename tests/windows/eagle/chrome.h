// What surrounds an editor's canvas: the menu bar, the rows at the top, the palette at the left, and where
// each stands. All in pixels of the frame's client area.
#pragma once
#include <windows.h>

namespace chrome {

struct Layout {
    RECT layer, coordinates, command, canvas, status;
};

// The command field ends well before the right edge: that space is free.
Layout layout(int width, int height);

inline constexpr WORD closeCommand = 101;

HMENU makeMenu(bool german);

// The parts that are no windows: the row of tool pictures and the palette.
void paint(HDC dc, int height);

} // namespace chrome
