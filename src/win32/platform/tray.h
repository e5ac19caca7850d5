// Icons in the tray, which belong to the shell: it can be busy, or hang.
#pragma once

#include <windows.h>

#include <shellapi.h>

namespace win32 {

/// Adds, changes or deletes an icon, by a message NIM_*. False if the shell does not do so. A shell that
/// hangs is waited for once; until it answers again it is not asked.
bool notifyShell(DWORD message, NOTIFYICONDATAA& icon);

} // namespace win32
