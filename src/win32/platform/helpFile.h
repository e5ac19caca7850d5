// Where the help viewer finds a help file.
#pragma once

#include <string>

namespace win32 {

/// A help file's path as the viewer can open it. The viewer works in the code page: of a file in a folder
/// that this lacks letters of it gets a copy, in the user's folder for what is temporary or in the one that
/// all users share. The path itself if nothing better can be had.
std::string helpFileForViewer(const char* file);

} // namespace win32
