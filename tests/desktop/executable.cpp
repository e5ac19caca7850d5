#include "platform/executable.h"

#include "desktop/desktop.h"

namespace platform {

const std::string& executableName() {
    return desktop::world().executableName;
}

const std::string& programFolder() {
    return desktop::world().programFolder;
}

} // namespace platform
