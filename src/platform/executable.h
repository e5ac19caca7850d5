// The running program's own file.
#pragma once

#include <string>

namespace platform {

/// Name of the executable, without folder and extension.
const std::string& executableName();

} // namespace platform
