// Windows of ours that were to go into a host and that the system has refused to put there: the host is of
// higher integrity (EAGLE run as administrator), belongs to another user, or has just died.
//
// Such a window would stand on the desktop with the place that it was to have in the host. It is kept from
// sight: nothing shows it until it has been put into a window after all.
#pragma once

#include <windows.h>

namespace win32 {

/// Hides a window that the system has refused to put into this host, and keeps it hidden. An older one that
/// was to go into the same host ends with all that it stands on: the scan for libraries makes a new one each
/// tick, and a process may have ten thousand windows.
void keepFromSight(HWND window, HWND host);

/// The window stands in a host: it is seen if it should be by what it was told meanwhile.
void letBeSeen(HWND window);

/// The system has refused a window: to make one, or to put it into a host.
void noteRefusal();
/// Whether it has done so within the last 0.8 s.
bool refusedLately();

/// Whether a window is kept from sight. If it is, that it is now to be seen, or not, is noted.
bool keptFromSight(HWND window, bool toBeSeen);

} // namespace win32
