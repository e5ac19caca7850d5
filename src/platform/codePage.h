// The ANSI code page, in which the program has its texts.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Text of the ANSI code page as UTF-16, and back; what the code page lacks becomes a question mark.
std::u16string toUtf16(std::string_view text);
std::string toAnsi(std::u16string_view text);

} // namespace platform
