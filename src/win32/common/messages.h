// How messages that wait for us are served, in the program's loops and in waits between them.
#pragma once

#include <windows.h>

namespace win32 {

/// Serves one message that has been fetched: dialog keys of our own windows first, then the ordinary way.
void serve(MSG& message);

/// Serves what is waiting and returns. A message that asks for the end of the program is put back.
void servePending();

/// A key that belongs to a dialog of ours as a whole is done with: Tab, Enter, Esc, a mnemonic. False for any
/// other. Defined beside the peers, which know our windows.
bool doneAsDialogKey(MSG& message);

} // namespace win32
