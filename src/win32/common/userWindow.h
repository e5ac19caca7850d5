// Which window the user works in: not always the one in front.
#pragma once

#include <windows.h>

namespace win32 {

/// Begins to follow the user from window to window. Calls after the first that is not refused do nothing.
void followUser();

/// The window in front; while that is none that a user works in, the last one before it that is still there.
/// A click on our icon in the tray brings the task bar in front, and its menu a window of ours that nobody
/// sees: neither is where the user was. Null if there is none.
HWND userWindow();

} // namespace win32
