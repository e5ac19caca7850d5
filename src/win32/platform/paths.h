// What the system's calls say of paths.
#pragma once

#include <windows.h>

namespace win32 {

/// Characters that a path can have at most, with the NUL at its end.
inline constexpr DWORD longestPath = 32768;

} // namespace win32
