// Which of our windows hear the user, and how keys find their way: modal forms and dialog keys.
#pragma once

#include "forms/form.h"

#include <windows.h>

namespace win32 {

/// A form or a frame has got a window of its own: while another form is modal it is held.
void windowMade(HWND window, const forms::Form& form);
void windowGone(HWND window);
/// A form is about to be hidden: if it is the modal one in front, the forms that it holds hear the user
/// again.
void leaving(const forms::Form& form);

/// Serves one message that has been fetched: dialog keys of our own windows first, then the ordinary way.
void serve(MSG& message);

/// Serves what is waiting and returns. A message that asks for the end of the program is put back.
void servePending();

} // namespace win32
