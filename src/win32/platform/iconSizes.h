// The sizes in which a file has an icon. The system takes the one that is nearest, and stretches it.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace win32 {

/// The width of the picture that is best for an icon of `side` pixels: the smallest that is not smaller, else
/// the largest that there is. `side` itself if the file does not tell.
int bestIconSide(const std::wstring& path, std::int32_t index, int side);

/// The same icon with edges of `side` pixels, each the mean of what it covers; null if it cannot be had. The
/// caller's to destroy.
HICON scaledIcon(HICON icon, int side);

} // namespace win32
