// Gives the keyboard back to whom it belonged before a dialog of ours took it.
#pragma once

#include <windows.h>

namespace win32 {

class FocusKeeper {
  public:
    /// Remembers the window in front and, in it, the one that has the focus.
    FocusKeeper();
    /// Gives it back.
    ~FocusKeeper();
    /// The user has chosen another window: nothing is to be given back.
    void dismiss() { front_ = nullptr; }
    FocusKeeper(const FocusKeeper&) = delete;
    FocusKeeper& operator=(const FocusKeeper&) = delete;

  private:
    HWND front_;
    HWND focus_ = nullptr;
};

} // namespace win32
