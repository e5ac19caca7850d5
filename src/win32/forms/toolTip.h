// Tool tips of ordinary controls.
#pragma once

#include <windows.h>

#include <string>

namespace win32 {

/// A text that shows beside the mouse while it rests over a window of this thread. What the system needs for
/// it is made when the mouse comes: most windows that could show one never see it.
///
/// The system could watch the window by itself, but would then ask it for a property three times with each
/// of its messages.
class ToolTip {
  public:
    /// To be called with each message of the window, before the window acts on it.
    void hear(HWND window, const std::string& text, UINT message, WPARAM wParam, LPARAM lParam);
    /// The text is another one. An empty one takes the tip away, which has to happen before the window is
    /// gone for good.
    void change(HWND window, const std::string& text);

  private:
    bool made_ = false;
};

} // namespace win32
