// What a window of ours that stands in another program's window keeps to itself.
//
// The system's default handling of some messages asks or tells the parent window, and that is the host's: it
// would wait for as long as the host is busy or hangs, with every move of the mouse. Such messages are
// answered here.
#pragma once

#include <windows.h>

namespace win32 {

/// Whether the window stands, at whatever depth, in a window of another program.
bool isHosted(HWND window);

/// Answers a message that would go on to the host. False if the default handling stays among our own windows.
bool answerAsHosted(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

} // namespace win32
