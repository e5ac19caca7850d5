// What the program's routines leave open on purpose: the snapshot of each process walk, and the large icon of
// each extraction. Nobody asks for them again, and a process has room for some thousands. So each lives until
// the next one of its kind is asked for, or until it is given back after all.
#pragma once

#include <windows.h>

namespace win32 {

/// A snapshot has been taken: it stays open until `endLastSnapshot`.
void keepSnapshot(HANDLE snapshot);
/// Before the next one. Does nothing if there is none.
void endLastSnapshot();

/// The same for the large one of the icons that were extracted.
void keepLargeIcon(HICON icon);
void endLastLargeIcon();

/// Somebody gives an icon back by himself: it is no longer ours to end.
void forgetIcon(HICON icon);

} // namespace win32
