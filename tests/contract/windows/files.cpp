#include "contract/windows/files.h"

#include <windows.h>

#include <fstream>
#include <iterator>

namespace contract {

std::string ownPath() {
    char path[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    return path;
}

std::string dataFolder() {
    const std::string own = ownPath();
    return own.substr(0, own.find_last_of('\\')) + "\\contract-data";
}

std::string scratchFolder() {
    char temporary[MAX_PATH] = {};
    GetTempPathA(MAX_PATH, temporary);
    return std::string(temporary) + "kestrel-contract-" + std::to_string(GetCurrentProcessId());
}

void writeWholeFile(const std::string& path, const std::string& content) {
    removeWholeFile(path);
    std::ofstream(path, std::ios::binary) << content;
}

std::optional<std::string> readWholeFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void removeWholeFile(const std::string& path) {
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileA(path.c_str());
}

bool removeFolder(const std::string& path) {
    WIN32_FIND_DATAA found{};
    const HANDLE search = FindFirstFileA((path + "\\*").c_str(), &found);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            const std::string name = found.cFileName;
            if (name == "." || name == "..")
                continue;
            if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
                removeFolder(path + "\\" + name);
            else
                removeWholeFile(path + "\\" + name);
        } while (FindNextFileA(search, &found) != FALSE);
        FindClose(search);
    }
    return RemoveDirectoryA(path.c_str()) != FALSE ||
           GetFileAttributesA(path.c_str()) == INVALID_FILE_ATTRIBUTES;
}

} // namespace contract
