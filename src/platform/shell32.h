// Shell operations of the platform: icons of files, the icon chooser. None throws.
#pragma once

#include "platform/types.h"

#include <cstdint>
#include <span>

namespace platform {

/// Extracts the icon with number `index` (from 0) of an executable, a library or an .ico file, at the
/// large and the small size. Gives the number of icons extracted, 0 on failure. Both handles are the caller's.
std::uint32_t ExtractIconExA(const char* file, std::int32_t index, HICON& largeIcon, HICON& smallIcon);

/// The system's icon chooser. `file` is a buffer of UTF-16 characters that holds the start file, ended by NUL,
/// and receives the chosen one; `index` likewise. Gives 1 when the user confirmed; any other result is none.
int PickIconDlg(HWND owner, std::span<char16_t> file, std::int32_t& index);

} // namespace platform
