// The sizes in which a file has an icon. The system takes the one that is nearest, and stretches it.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace win32 {

/// What an .ico file or an icon in a library tells of its pictures: a header with their number, then an entry
/// for each.
using IconDirectory = std::vector<unsigned char>;
inline constexpr std::size_t iconDirectorySize = 6; ///< of the header
inline constexpr std::size_t iconCountAt = 4;

/// Of the icon with this number in a library; empty if it cannot be had.
IconDirectory directoryInLibrary(const std::wstring& path, std::int32_t index);

/// The width of the picture that is best for an icon of `side` pixels: the smallest that is not smaller, else
/// the largest that there is. `side` itself if a directory, as it stands in a library, does not tell.
int bestIconSide(const IconDirectory& directory, int side);

/// The same icon with edges of `side` pixels, each the mean of what it covers; null if it cannot be had. The
/// caller's to destroy.
HICON scaledIcon(HICON icon, int side);

} // namespace win32
