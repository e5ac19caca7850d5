// Which of our windows hear the user, and how keys find their way: modal forms and dialog keys.
#pragma once

#include "forms/form.h"

#include <windows.h>

#include <vector>

namespace win32 {

/// A form has got its window: while another form is modal it is held.
void windowMade(HWND window, const forms::Form& form);
void windowGone(HWND window);
/// All forms that have a window, hosted ones too.
std::vector<HWND> formWindows();
/// A form is about to be hidden: if it is the modal one in front, the forms that it holds hear the user
/// again.
void leaving(const forms::Form& form);

/// Whether a modal form, or a dialog of the system, keeps the user from this form. One that stands in another
/// program's window has to ask: it cannot be disabled, since the clicks on it would go on to the host.
bool isHeld(const forms::Form& form);

/// Holds all forms as long as a dialog of the system is up.
class HoldAll {
  public:
    HoldAll();
    ~HoldAll();
    HoldAll(const HoldAll&) = delete;
    HoldAll& operator=(const HoldAll&) = delete;
};

/// Serves one message that has been fetched: dialog keys of our own windows first, then the ordinary way.
void serve(MSG& message);

/// Serves what is waiting and returns. A message that asks for the end of the program is put back.
void servePending();

} // namespace win32
