// The help's window, at the end of the program.
#pragma once

namespace win32 {

/// Closes the help's windows, which are windows of this process: with their thread ended in the midst of
/// something they may fault. One that does not answer is left.
void closeHelp();

} // namespace win32
