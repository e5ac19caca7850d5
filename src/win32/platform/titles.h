// Titles of windows, as the system keeps them.
#pragma once

#include <windows.h>

#include <string>

namespace win32 {

/// The title in the ANSI code page. No window is asked for it, whoever's it is: one of another thread of our
/// own, the help's for instance, would be sent a message and waited for.
std::string titleOf(HWND window);

} // namespace win32
