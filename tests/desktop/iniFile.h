// The platform's settings-file operations on a file's text alone: what is read from it, what a write makes of
// it.
//
// They follow the platform as it is documented and measured (tests/data/profile.tsv): lines end in CR, LF or
// both; blanks and control characters around names and values do not count, nor does case; a line whose first
// character is a semicolon is a comment; of sections and keys that stand twice the first counts; a pair of
// quotes around a value is taken off. Text is in the ANSI code page, unless the file begins with the mark
// of UTF-16LE: such a file, be it nothing but its mark, is read and written in that.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace desktop {

/// Reads as GetPrivateProfileStringA does; a null `fileText` is a file that does not exist.
std::uint32_t profileGet(const std::string* fileText, const char* section, const char* key,
                         const char* defaultValue, char* buffer, std::uint32_t size);

/// Changes the text as WritePrivateProfileStringA does the file; an absent file is made.
int profileWrite(std::optional<std::string>& fileText, const char* section, const char* key,
                 const char* value);

} // namespace desktop
