// Reading and writing text files. The file is closed again when a routine returns. Paths are in the ANSI code
// page.
//
// Both that write make the file if it is not there. Their errors 61, 70, 75, 76: the disk is full, another
// program keeps the file to itself, file or folder may not be written, there is no such folder.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// The first line of a text file, without its line end; empty if the file is. Of a line beyond a megabyte
/// only its beginning. Errors 53, 55, 70, 75, 76.
std::string readFirstLine(std::string_view path);

/// Puts text behind what the file holds.
void appendToFile(std::string_view path, std::string_view text);

/// Makes text the only content of the file.
void writeFile(std::string_view path, std::string_view text);

} // namespace platform
