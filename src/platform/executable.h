// The running program's own file.
#pragma once

#include <string>

namespace platform {

/// Name of the executable, without folder and extension.
const std::string& executableName();

/// Folder of the running program, without a trailing backslash unless it is a drive root.
const std::string& programFolder();

} // namespace platform
