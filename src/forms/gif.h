// The GIF files that the program carries, read without the system: its reader for pictures brings along
// libraries that take more memory than the rest of the program, and they would stay.
#pragma once

#include "forms/picture.h"

#include <cstdint>
#include <span>

namespace forms {

/// The picture of a file as the program's are: one picture that is the whole screen, its rows in their order,
/// in the colours of the file's own table, none of them clear. The empty picture if the file is another kind
/// or ends too soon.
Picture readGif(std::span<const std::uint8_t> file);

} // namespace forms
