// Folders of the simulated desktop, which are there as long as something is in them.
#pragma once

#include <string>

namespace desktop {

bool folderExists(const std::string& path);

} // namespace desktop
