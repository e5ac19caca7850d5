// Gives the keyboard back to whom it belonged before a dialog or a menu of ours took it.
#pragma once

#include <windows.h>

namespace win32 {

/// Where the user's keys go: a top-level window and, in it, the one that has the focus.
struct KeyboardPlace {
    HWND front = nullptr;
    HWND focus = nullptr;

    /// Brings the keyboard there. False if it is not there: that window does not answer, and nothing was
    /// done, or it has not come in front, or not yet.
    bool give() const;
    /// Makes that window the one in front whether it answers or not: a host that is busy takes what is typed
    /// when it comes to it.
    void bring() const;
};

class FocusKeeper {
  public:
    /// Remembers the window that the user works in and, in it, the one that has the focus.
    FocusKeeper();
    /// Gives it back. Where that window has gone, the one that the user worked in before it gets the
    /// keyboard.
    ~FocusKeeper();
    /// Gives it back already now, while a window of ours is in front that is about to go.
    void give() const;
    /// The user has chosen another window: nothing is to be given back.
    void dismiss() { dismissed_ = true; }
    /// The program is about to end, whatever is open: if the keyboard is with one of its windows or nobody,
    /// the user gets it back where he was before.
    static void leaveAll();
    FocusKeeper(const FocusKeeper&) = delete;
    FocusKeeper& operator=(const FocusKeeper&) = delete;

  private:
    KeyboardPlace place_;
    FocusKeeper* outer_; ///< made before this one and still there
    bool dismissed_ = false;
};

/// A window was to get the keyboard and does not answer.
void oweKeyboard(HWND front);

/// Where the keyboard belongs and could not be brought, by the last keeper or otherwise, since that window
/// did not answer; for whoever can wait for it. It is told once, and not after another message has been
/// served: then the user may be elsewhere. Without a window if there is none.
KeyboardPlace takeOwedKeyboard();

} // namespace win32
