// The base of all peers: one real window that shadows one control.
//
// The window is of a system class, or of one of our own for forms and frames, and is subclassed; whatever the
// window procedure is called with goes through the guard. The window can die under us at any moment, when
// EAGLE closes the window that it stands in; the peer then stays and has no window.
#pragma once

#include "forms/control.h"
#include "forms/form.h"
#include "forms/peer.h"
#include "win32/common/native.h"
#include "win32/forms/toolTip.h"

#include <windows.h>

#include <memory>
#include <optional>
#include <string>

namespace win32 {

class ContainerPeer;
struct OwnedFont;

class WindowPeer : public forms::Peer {
  public:
    ~WindowPeer() override;

    platform::HWND window() const override;
    void changed(forms::Property property) override;
    void setFocus() override;

    HWND handle() const { return handle_; }
    forms::Control& control() const { return control_; }

    /// The peer of one of our windows; null for any other window.
    static WindowPeer* of(HWND window);

    /// A notification of the window, passed on by the container that has received it: its code, and the
    /// number of the control or of its button.
    virtual void command(WORD /*code*/, WORD /*id*/) {}
    virtual LRESULT notify(NMHDR& /*header*/) { return 0; }

  protected:
    explicit WindowPeer(forms::Control& control) : control_(control) {}

    /// Makes the window as a child of its container's, at the control's place, enabled and visible as the
    /// control is.
    void createChild(const char* className, const std::string& text, DWORD style, DWORD exStyle = 0);
    /// Takes a window that has just been made.
    void adopt(HWND window);
    /// The window's own messages. Not called once the window is being destroyed.
    virtual LRESULT message(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT defaultMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// Where the window belongs, in pixels of its container's client area: the control's own place, unless
    /// the system's control needs another one.
    virtual RECT childPlace() const;
    /// Whether mouse events are raised before a message goes to the window. Else the peer raises them itself.
    virtual bool mouseEventsFirst() const { return true; }
    /// Raises the control's mouse event if the message is one.
    void reportMouse(UINT message, WPARAM wParam, LPARAM lParam);
    /// The peer of the control's container; null if that has none.
    ContainerPeer* containerPeer() const;
    /// The colour that the control stands on.
    COLORREF colourBehind() const;
    std::string windowText() const;
    /// The same in UTF-16, with what the code page lacks.
    std::u16string wideText() const;
    /// Sets the window's text if it differs, and tells whether it did.
    bool setWindowText(const std::string& text);
    void applyFont();
    /// The control's twips as pixels.
    int pixels(float twips) const { return control_.resolution().toPixels(twips); }

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    HWND formLeftBehind() const;
    bool startsGroup() const;
    void takeTabPlace();
    void takePlace();
    void leaveFocus() const;

    forms::Control& control_;
    HWND handle_ = nullptr;
    std::shared_ptr<const OwnedFont> font_; ///< that the window has
    ToolTip tip_;
};

inline COLORREF nativeColour(forms::Colour colour) {
    return RGB(colour >> 16 & 0xFFU, colour >> 8 & 0xFFU, colour & 0xFFU);
}

/// The colour of a control's text: its own, else black on a background of the program's own and the system's
/// on any other. The user who has asked for high contrast has the system's there whatever the control's own
/// is.
COLORREF textColour(const forms::Control& control, bool ownBackground);

/// Shift state of the keyboard as events have it: 1 Shift, 2 Ctrl, 4 Alt.
int shiftState();

/// Registers a window class of our own; the default procedure does nothing, the peer's subclass all.
void registerClass(const char* name);

} // namespace win32
