#include "platform/executable.h"

#include <windows.h>

namespace platform {

const std::string& executableName() {
    static const std::string name = [] {
        constexpr DWORD longestPath = 32768;
        std::string path(longestPath, '\0');
        path.resize(GetModuleFileNameA(nullptr, path.data(), longestPath));
        const std::string file = path.substr(path.find_last_of('\\') + 1);
        return file.substr(0, file.find_last_of('.'));
    }();
    return name;
}

} // namespace platform
