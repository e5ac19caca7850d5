#include "platform/files.h"

#include "win32/platform/fileError.h"
#include "win32/platform/hosts.h"
#include "win32/platform/paths.h"

#include <windows.h>

#include <memory>
#include <string>

namespace {

runtime::RuntimeError lastError() {
    return win32::lastFileError(runtime::ErrorNumber::fileNotFound);
}

/// The bare name of the first plain file that a path matches, none if there is none. Tells whether the path's
/// host has answered.
bool findFile(const std::string& path, std::string& name) {
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return win32::isAnswer(GetLastError());
    do {
        constexpr DWORD special = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
        if ((found.dwFileAttributes & special) == 0)
            name = found.cFileName;
    } while (name.empty() && FindNextFileA(search, &found) != FALSE);
    FindClose(search);
    return true;
}

} // namespace

namespace platform {

std::string dir(std::string_view path) {
    // The platform takes some characters that no file name holds for wildcards of its own.
    if (path.empty() || path.find_first_of("<>\"|") != std::string_view::npos)
        return {};
    const auto name = std::make_shared<std::string>();
    const bool asked =
        win32::askHost(path, [whole = std::string(path), name] { return findFile(whole, *name); });
    return asked ? *name : std::string();
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
