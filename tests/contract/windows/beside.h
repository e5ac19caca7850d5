// A user at a dialog or a menu of the system: it has our thread, so that the user works on another one.
#pragma once

#include "platform/keyStroke.h"

#include <windows.h>

#include <functional>
#include <string_view>

namespace contract {

inline constexpr const char* dialogClass = "#32770"; ///< message boxes and file dialogs
inline constexpr const char* menuClass = "#32768";

bool isOfClass(HWND window, std::string_view className);

/// Does `call`, which shows a window of that class and returns when it has gone, and `user` beside it as soon
/// as that window is seen. One that is still there afterwards is closed.
void withUser(const char* className, const std::function<void()>& call,
              const std::function<void(HWND window)>& user);

/// Waits for a condition beside our thread. False if it does not come true in time.
bool comes(const std::function<bool()>& condition);

/// Whether a dialog is in front and one of its controls has the focus.
bool hasKeyboard(HWND dialog);

/// Waits until the dialog has the keyboard, then presses the key until it has gone. False if it stays.
bool closeBy(HWND dialog, platform::Key key);

/// A message that is waited for, but not for ever: then -1.
LRESULT ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

} // namespace contract
