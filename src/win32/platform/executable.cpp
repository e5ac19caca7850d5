#include "platform/executable.h"

#include "win32/platform/paths.h"

#include <windows.h>

namespace {

std::string ownPath() {
    std::string path(win32::longestPath, '\0');
    path.resize(GetModuleFileNameA(nullptr, path.data(), win32::longestPath));
    return path;
}

} // namespace

namespace platform {

const std::string& executableName() {
    static const std::string name = [] {
        const std::string path = ownPath();
        const std::string file = path.substr(path.find_last_of('\\') + 1);
        return file.substr(0, file.find_last_of('.'));
    }();
    return name;
}

const std::string& programFolder() {
    static const std::string folder = [] {
        const std::string path = ownPath();
        const std::size_t slash = path.find_last_of('\\');
        constexpr std::size_t root = 2; // the place of the backslash in a drive root
        return path.substr(0, slash == root ? root + 1 : slash);
    }();
    return folder;
}

} // namespace platform
