// How finely programs see the screen.
//
// A program may know of the screen's true pixels, of those of the main screen, or of none finer than 96 to
// the inch; the system shows it the pixels that it knows, and enlarges what it draws. All windows of one tree
// see the same. What goes into a window of another program is therefore made as that program sees the screen;
// if it were not, the system would change the view of our whole process, with all that is open.
#pragma once

#include "platform/types.h"

#include <cstdint>

namespace platform {

/// Pixels to an inch as a window sees the screen that it stands on; 0 for a dead window.
int dpiOf(HWND window);

/// As long as it lives, the program sees the screen as this window does: rectangles are in its pixels, and
/// windows that are made see what it sees. A dead window changes nothing.
class InAwarenessOf {
  public:
    explicit InAwarenessOf(HWND window);
    ~InAwarenessOf();
    InAwarenessOf(const InAwarenessOf&) = delete;
    InAwarenessOf& operator=(const InAwarenessOf&) = delete;

  private:
    std::uintptr_t former_;
};

} // namespace platform
