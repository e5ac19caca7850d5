// The ANSI code page, in which the program has its texts. It may be any: one byte a character, one or two
// (932, 936, 949, 950), or UTF-8 (65001).
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Number of the code page in force; it stays while the program runs.
unsigned GetACP();

inline constexpr unsigned utf8CodePage = 65001;

/// Whether a byte is the first of two that are one character. Of none in UTF-8, as the platform has it.
bool IsDBCSLeadByte(char byte);

/// Text of the ANSI code page as UTF-16, and back; of what the code page lacks comes the letter that the
/// platform holds for the nearest, else a question mark.
std::u16string toUtf16(std::string_view text);
std::string toAnsi(std::u16string_view text);

} // namespace platform
