// The keys that belong to a dialog as a whole: which window they are for, and where they lead.
#pragma once

#include <windows.h>

namespace win32 {

/// The window whose dialog keys are meant by those that go to `window`: the outermost of ours around it. Null
/// for windows of others.
HWND dialogOf(HWND window);

/// Gives the focus to the next or previous stop of the Tab key after `from`, its text selected.
void moveFocus(HWND from, bool back);

/// The control that has the keyboard first in a container: the one that its form names if that can take it,
/// else the first stop of the Tab key. Null if there is none.
HWND firstStop(HWND container);

/// Gives the focus to the first stop in `container`, or to the container itself if it has
/// none.
void focusFirst(HWND container);

} // namespace win32
