// Writing text files. The file is closed again when a routine returns.
//
// Both make the file if it is not there. Errors 61, 70, 75, 76: the disk is full, another program keeps the
// file to itself, file or folder may not be written, there is no such folder.
#pragma once

#include <string_view>

namespace platform {

/// Puts text behind what the file holds.
void appendToFile(std::string_view path, std::string_view text);

/// Makes text the only content of the file.
void writeFile(std::string_view path, std::string_view text);

} // namespace platform
