// The calls that change which window is in front, which has the focus, which is seen and what it stands in.
//
// A form that stands in a host's window shares its input with the host's thread from then on, and the system
// does none of this before that thread has heard of it. So all of these calls stand here, the rest of the
// Windows side makes none by itself, and each parts us from hosts that do not answer first (joinedHosts.h).
// There alone stand two more: the focus goes to the field that the user has clicked on, when the field's host
// has just answered, and a window of ours stays in front when we are parted from a host. A control with a
// number takes its place among its siblings by itself when its window is made (forms/windowPeer.cpp), with
// its form and before that goes into a host. A place or a size that changes without a change of order needs
// none of this; the peers set it by themselves. What the system does on its own at the start and the end of
// its dialogs and menus cannot be had here: who opens one holds our forms (Hold), which sees to that, and
// gives the keyboard back (FocusKeeper).
#pragma once

#include <windows.h>

namespace win32 {

/// Makes a top-level window the one that the user works in. The system may refuse; nothing tells.
void activateWindow(HWND window);

/// Gives a window its place in the order of windows after this one (or HWND_TOP, HWND_TOPMOST), and the rest
/// that the flags SWP_* leave to be changed. One of another program does it when it comes to it: the system
/// leaves the change with that program's thread as long as its input is not joined with ours, so that we are
/// parted from hosts that do not answer first. One of ours that nobody sees takes the keyboard from nobody.
/// False if there is no such window.
bool orderWindow(HWND window, HWND after, const RECT& place, UINT flags);

/// Gives the keyboard to a window of ours, or to one whose thread shares its input with ours. Null takes it
/// from all.
void focusWindow(HWND window);

/// Puts a window in front of its siblings; one of another program only if it answers, and it is never waited
/// for. False if there is no such window.
bool raiseWindow(HWND window);

/// Shows or hides a window, by a command SW_*; one of another program does it when it comes to it. Gives
/// whether it was seen before.
bool showWindow(HWND window, int command);

/// Shows a window of ours where it is, in front of nothing that it is behind, and leaves the keyboard alone.
void showInPlace(HWND window);

/// Moves and sizes a window of ours where it stands, with further flags SWP_*; for one of another program
/// there is `orderWindow`. What ours covered is drawn when the program that it belongs to comes to it: the
/// system would else have it erased at once, in our thread, and under Wine wait for each window of a host
/// that is asked.
bool moveWindow(HWND window, const RECT& place, UINT more = 0);

/// Puts a window of ours into another one, or with null back onto the desktop, its styles with it; one that
/// stands there already stays as it is. Gives what it stood in before. Null if the system refuses, or the
/// parent has died: the window stands where it stood, its styles are as before, and it is kept from sight
/// (refusal.h).
HWND putInto(HWND window, HWND parent);

/// Ends a window of ours. If it was in front, the system chooses the next one.
void destroyWindow(HWND window);

} // namespace win32
