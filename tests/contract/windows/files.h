// Files as the tests need them on Windows, beside what the program itself can do.
#pragma once

#include <optional>
#include <string>

namespace contract {

/// Full path of the running program.
std::string ownPath();
/// Folder with what the tests read: tables and icons. It stands beside the program.
std::string dataFolder();
/// Folder of its own for this process, for files that come and go.
std::string scratchFolder();

void writeWholeFile(const std::string& path, const std::string& content);
/// None if there is no such file.
std::optional<std::string> readWholeFile(const std::string& path);
/// Whatever its attributes; also if there is none.
void removeWholeFile(const std::string& path);
/// Removes a folder with all that is in it. False while something in it is in use.
bool removeFolder(const std::string& path);

} // namespace contract
