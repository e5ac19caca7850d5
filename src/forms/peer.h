// The seam between a control, which is a plain object with state and events, and the window that shows it.
//
// A control tells its peer what has changed, and the peer reads the new state from the control. The way back
// is the control's own routines named after what the user did (edited, clickButton, selected ...). makePeer
// and the routines below it are defined beside the platform operations: real windows in the program, windows
// of the simulated desktop in the tests.
//
// What the controls expect of it:
// - A form's peer reports the size that its window has taken by Form::windowResized before changed()
//   returns; a size that is not reported was refused. It reports every new place by Form::windowMoved.
// - A window that takes over a state raises no event for it.
// - items and buttons are told once for each row: a peer appends, or collects and rebuilds once, later.
//   The texts of a toolbar button are filled in after it was told of.
// - A toolbar's peer reports the height of its rows by Toolbar::rowsLaidOut before catchUp() returns, as
//   long as it has a window. Without one the height is that of the model's own layout, which follows the
//   same rule.
#pragma once

#include "forms/units.h"
#include "platform/types.h"

#include <memory>

namespace forms {

class Control;
class Form;
class Menu;
class Timer;

/// What of a control has changed.
enum class Property {
    position, ///< left, top, width or height
    text,     ///< text or caption
    enabled,
    visible,
    toolTip,
    selection, ///< selected text, list row, icon or tab
    value,     ///< check box or option button
    items,     ///< rows of a list, captions of tabs, icons of a grid
    picture,
    imageList,
    buttons, ///< buttons of a toolbar
    colours, ///< colours or font
    mousePointer,
    resolution, ///< of the form: the place in pixels, the font, the pictures
};

/// Shared, so that a window whose event drops its own peer can keep it until the event has returned.
class Peer : public std::enable_shared_from_this<Peer> {
  public:
    virtual ~Peer() = default;
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    /// The window that shows the control; none once it has died with its host.
    virtual platform::HWND window() const = 0;
    virtual void changed(Property property) = 0;
    virtual void setFocus() {}
    /// Does now what it has put off.
    virtual void catchUp() {}

  protected:
    Peer() = default;
};

/// Makes the window of a control whose container has one. A null result means that this control needs none
/// here.
std::unique_ptr<Peer> makePeer(Control& control);

/// Title bar and frame of a form's border, in pixels: outer size less client size.
struct FrameExtent {
    int width = 0;
    int height = 0;
};
FrameExtent frameExtent(const Form& form);
/// The same on a screen of another resolution.
FrameExtent frameExtent(const Form& form, Resolution screen);

/// Serves messages until the form is hidden or unloaded, with the program's other forms held.
void runModal(Form& form);

/// A timer has been switched on or off, or its interval has changed.
void timerChanged(Timer& timer);

/// Opens the menu at the mouse and runs the chosen entry's click.
void popUp(Form& owner, Menu& menu);

} // namespace forms
