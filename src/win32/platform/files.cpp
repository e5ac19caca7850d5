#include "platform/files.h"

#include "win32/platform/fileError.h"
#include "win32/platform/paths.h"
#include "win32/platform/patience.h"

#include <windows.h>

#include <memory>
#include <string>

namespace {

runtime::RuntimeError lastError() {
    return win32::lastFileError(runtime::ErrorNumber::fileNotFound);
}

/// The bare name of the first plain file that a path matches.
std::string findFile(const std::string& path) {
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return {};
    std::string name;
    do {
        constexpr DWORD special = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
        if ((found.dwFileAttributes & special) == 0)
            name = found.cFileName;
    } while (name.empty() && FindNextFileA(search, &found) != FALSE);
    FindClose(search);
    return name;
}

bool isRemote(const std::string& path) {
    if (path.starts_with("\\\\") || path.starts_with("//"))
        return true;
    return path.size() > 1 && path[1] == ':' &&
           GetDriveTypeA((path.substr(0, 2) + "\\").c_str()) == DRIVE_REMOTE;
}

/// A host that does not answer takes the system half a minute: what has not been found by then counts as
/// missing.
std::string findPatiently(const std::string& path) {
    const auto name = std::make_shared<std::string>();
    return win32::doPatiently([path, name] { *name = findFile(path); }) ? *name : std::string();
}

} // namespace

namespace platform {

std::string dir(std::string_view path) {
    // The platform takes some characters that no file name holds for wildcards of its own.
    if (path.empty() || path.find_first_of("<>\"|") != std::string_view::npos)
        return {};
    const std::string whole(path);
    return isRemote(whole) ? findPatiently(whole) : findFile(whole);
}

void kill(std::string_view path) {
    if (DeleteFileA(std::string(path).c_str()) == FALSE)
        throw lastError();
}

std::string currentDirectory() {
    std::string folder(win32::longestPath, '\0');
    folder.resize(GetCurrentDirectoryA(win32::longestPath, folder.data()));
    return folder;
}

} // namespace platform
