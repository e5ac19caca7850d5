// What stands on the desktop: every window of every program with its place and text, the buttons of every
// toolbar, how many items a tree has, the processes. Written as lines with fields separated by tabs:
//
//   window   handle, parent (0 for a top-level window), owner, process id, class, style, extended style,
//            visible, enabled, left, top, right, bottom, client left, top, right, bottom, text
//   button   toolbar's handle, index, left, top, right, bottom, state, style
//   tree     tree's handle, number of its items
//   focus    foreground window, window with the focus in its thread
//   process  id, name of the executable
//
// Top-level windows stand in window order, children behind their parents in their order. All rectangles are
// in screen pixels.
#pragma once
#include <windows.h>

#include <string>

namespace windowTree {

// Of all top-level windows and what is in them, or of one only.
std::string dump(HWND only = nullptr);

} // namespace windowTree
