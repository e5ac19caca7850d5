// Files that the user drops on a window from the shell. Defined in `platform`, which knows paths.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace win32 {

/// The window takes files from here on, by WM_DROPFILES. That is a message and not an object that the shell
/// calls: so it also comes from a shell with fewer rights than ours, once the system has been asked to let it
/// through.
void takeFiles(HWND window);

/// Full paths in a WM_DROPFILES, which is answered by this.
std::vector<std::string> droppedFiles(WPARAM wParam);

/// Answers a WM_DROPFILES that a form has got, which takes none itself. Wine tells the top-level window where
/// Windows tells the one under the mouse: if that takes files, it is told.
void passFilesOn(HWND form, WPARAM wParam);

} // namespace win32
