// The end of the process.
#pragma once

namespace win32 {

/// Ends the process at once, with code 0, and destroys nothing of ours: a thread that waits for a server may
/// still read what that would destroy, windows would be unloaded that others have become a part of, and after
/// a first fault nothing is known to be whole.
///
/// The system's own `ExitProcess` is not enough. The C library is a DLL that destroys a program's static
/// objects when it is told that the process ends, unless the program has left by way of the library; under
/// Wine it does not.
[[noreturn]] void endProcess();

} // namespace win32
