// The hosts whose input is joined with ours.
//
// When a window of ours goes into a host's the system joins the input of the two threads: they have one
// window in front, one focus, one state of the keys. That is how the Tab key and the focus work inside a
// hosted window. But every change of these then waits for the other side, as long as that sleeps, and not in
// the calls of windowChanges.h alone: the system's dialogs and menus, and a click of the user, wait as well.
//
// So a host that does not answer is parted from us until it does. It is asked before each change, and again
// and again without waiting for the answer, since the user's click comes without a call of ours; a click that
// came before goes the way of what the host has not taken.
//
// While we are parted the user's keys go to the host, also those for a field of ours in it. So a host that is
// silent for a moment only, while nothing of ours has to wait for it, stays joined: the system keeps what is
// typed and clicked in its order.
#pragma once

#include <windows.h>

namespace win32 {

/// A window of ours has gone into a window of this host.
void hostJoined(HWND host);
/// One has come out of there. The system leaves a host once for each, unless we are parted from it.
void hostLeft(HWND host);

/// To be called before anything that changes which window is in front, has the focus or is seen: from here on
/// it does not wait for a host that hangs. Takes `hostPatience` at most, once for a hang.
void partFromSilentHosts();

/// Whether a window's program is a host that was waited for in vain and has not answered since: one hang is
/// waited for once, whoever asks first.
bool knownSilent(HWND window);

/// Whether the program of a window serves its messages. It is waited for as `answers` waits, and not at all
/// if it is known to be silent. We are not parted from it: nothing need happen that would wait for it.
bool windowAnswers(HWND window);

/// A click is about to give the keyboard to this window of ours, or one inside it, that stands in a host. A
/// host that is only busy is waited for. False if it hangs: we are parted from it, the host cannot be
/// activated, and the window gets the keyboard once it answers.
bool readyForClick(HWND window);

/// The keyboard is about to go into this window or one inside it: if it is a host that we were parted from,
/// and that answers again, we are joined with it again at once. By itself that waits until no window of
/// ours is in front: the joined input has one focus, and it need not be ours.
void joinAgain(HWND window);

} // namespace win32
