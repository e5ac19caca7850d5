// Which of our forms hear the user: a modal form, or a dialog of the system, holds the others as long as it
// is up.
#pragma once

#include "forms/form.h"
#include "win32/common/views.h"

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

/// The window of the innermost modal form. Null if none is up, or if it does not hear the user itself since a
/// dialog of the system is up over it.
HWND modalWindow();

/// Holds forms from its making to its end. What is up meanwhile is our own, also if a click in a host has led
/// to it: the thread is in our own view.
class Hold {
  public:
    /// All forms but the one that the owner stands in, for a dialog of the system: that one the dialog
    /// disables by itself and enables before it goes. Found disabled it would be left so, and while the
    /// dialog goes none of our windows could come in front: the system would choose another program's.
    explicit Hold(HWND owner);
    /// All but this one, which is modal from now on: it hears the user even if it was held itself.
    explicit Hold(forms::Form& form);
    ~Hold();
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

  private:
    Seeing own_{ownView()};
};

} // namespace win32
