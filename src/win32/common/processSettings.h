// What the system is to do otherwise for this process than it does by default.
#pragma once

namespace win32 {

/// At the start, before the first timer.
///
/// Faults in the routine of a timer end the program as they do anywhere else. By default the system swallows
/// them, and the program would go on in whatever state they have left it in.
void settleProcess();

} // namespace win32
