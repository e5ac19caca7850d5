// How windows see the screens: a program may know of their true pixels, of those of the main screen, or of
// none finer than 96 to the inch. The system tells each the rectangles that it expects, and enlarges what it
// draws.
//
// Windows of one tree see the same. A window of ours that goes into a host's is therefore made in the host's
// view; the system would otherwise give the host's view to our whole process, whose open dialogs would shrink
// or grow. A window's procedure runs in the view of its window, so that whatever a click in a host leads to
// begins in the host's view: what is our own, dialogs, boxes and menus, enters ours first.
//
// All of it is bound at run time: Windows before 10 of August 2016 knows one view for a process.
#pragma once

#include <windows.h>

namespace win32 {

/// Null where the system has no views of windows, and for a dead window.
using View = DPI_AWARENESS_CONTEXT;

View viewOf(HWND window);
/// The program's own, as its manifest asks for it.
View ownView();

/// The thread goes into a view; null changes nothing. Gives the one that it was in, to be entered when it
/// leaves.
View enter(View view);

/// The thread is in a view as long as this lives.
class Seeing {
  public:
    explicit Seeing(View view) : former_(enter(view)) {}
    ~Seeing() { enter(former_); }
    Seeing(const Seeing&) = delete;
    Seeing& operator=(const Seeing&) = delete;

  private:
    View former_;
};

/// Pixels to an inch as the window sees them where it stands; 0 for a dead window.
int dpiOf(HWND window);

/// Makes a client area's rectangle that of the whole window, at so many pixels to an inch.
void addFrame(RECT& area, DWORD style, DWORD exStyle, int dpi);

} // namespace win32
