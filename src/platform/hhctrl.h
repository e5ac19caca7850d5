// The help viewer of the platform.
#pragma once

#include "platform/types.h"

#include <cstdint>

namespace platform {

/// Opens a help file; command 15 with a context number as data opens that topic. Gives the viewer's window,
/// none if the file is missing or has no such topic. A viewer that is up and does not answer within a fifth
/// of a second is left as it is. Error 53 if there is no help viewer to be called.
HWND HtmlHelpA(HWND owner, const char* file, std::uint32_t command, std::uintptr_t data);

} // namespace platform
