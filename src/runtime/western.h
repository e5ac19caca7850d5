// Texts that the program brings along. They are written in the Western code page, Windows-1252, since the
// sources hold ASCII alone; what is shown is in the code page in force.
#pragma once

#include <string>
#include <string_view>

namespace runtime {

/// A text of Windows-1252 in the code page in force. Of an umlaut that this lacks comes the letter below the
/// dots, of a sharp s "ss"; of any other character what the platform holds for the nearest.
std::string western(std::string_view text);

} // namespace runtime
