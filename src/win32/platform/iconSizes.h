// The sizes in which a file has an icon. The system takes the one that is nearest, and stretches it.
#pragma once

#include "forms/iconDirectory.h"

#include <windows.h>

#include <cstdint>
#include <string>

namespace win32 {

/// Of the icon with this number in a library; empty if it cannot be had.
forms::IconDirectory directoryInLibrary(const std::wstring& path, std::int32_t index);

/// The same icon with edges of `side` pixels, each the mean of what it covers; null if it cannot be had. The
/// caller's to destroy.
HICON scaledIcon(HICON icon, int side);

} // namespace win32
