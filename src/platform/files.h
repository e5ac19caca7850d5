// Directory lookup, deleting, the current folder. Paths are in the ANSI code page.
//
// A failure that is named here is thrown as runtime::RuntimeError.
//
// A server of the network that does not answer, or a drive that does not, keeps the program waiting for 3 s,
// for all lookups, icons and programs on it together; what is on it counts as missing then, for a minute.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// The bare name, in its stored case, of the first normal file that `path` (with `*` and `?`) matches; empty
/// if there is none. Directories, hidden and system files do not match, an empty path matches nothing.
std::string dir(std::string_view path);

/// Deletes a file. Errors 53, 70, 75.
void kill(std::string_view path);

/// What becomes of a file that has the name already.
enum class Existing { replaced, kept };
/// Makes `to` a copy of the file `from`; whole or not at all, also if the program is killed meanwhile, and
/// one that may be written. A file that another program holds is waited for, half a second for the copy and
/// half a second for its name. False on any failure, and where the name is taken by what is to be kept, seen
/// by dir() or not: that is found out by giving the name, not by a question before it.
bool copyFile(std::string_view from, std::string_view to, Existing existing = Existing::replaced);
/// Gives a file another name in its folder, in place of what has that name. Half a second is waited for files
/// that are held, and for one that may never be replaced, which Windows tells in the same words. False on any
/// failure.
bool renameFile(std::string_view from, std::string_view to);
/// The current folder, for a file dialog's start.
std::string currentDirectory();

} // namespace platform
