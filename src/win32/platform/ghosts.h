// The pictures that the system shows in place of windows that hang.
#pragma once

#include <windows.h>

namespace win32 {

/// One walk over all top-level windows. A window is asked for its class, which never changes, when it is
/// first met; it is forgotten when a whole walk, or each of many that ended early, has not met it. So a walk
/// asks about new windows alone, and a handle that another window has got since is asked anew: there is a
/// walk with every tick, and the system gives a handle again only after tens of thousands of other windows.
/// One that was a picture is asked in every walk all the same: there is seldom any, and an editor that was
/// given its handle between two walks would never be found.
class GhostWalk {
  public:
    GhostWalk();
    /// Whether the window that the walk has come to is such a picture.
    bool isGhost(HWND window);
    /// The walk is over; `complete` if it has come to all windows, so that what it has not met has gone.
    void end(bool complete) const;

  private:
    unsigned number_; ///< walks are numbered, for one can be made inside another
};

} // namespace win32
