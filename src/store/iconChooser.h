// The icon chooser of our own, for where the shell has none.
#pragma once

#include "platform/types.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace store {

/// Characters of the buffer for a file name that goes through an icon chooser, its NUL among them.
inline constexpr std::size_t iconPathSize = 260;

/// Does what platform::PickIconDlg does, with the same arguments: lets the user pick an icon, beginning with
/// that number `index` of `file`, which is ended by NUL, and gives 1 with both replaced, or 0 on cancel with
/// both as they were.
int pickIcon(platform::HWND owner, std::span<char16_t> file, std::int32_t& index);

} // namespace store
