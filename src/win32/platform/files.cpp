// Files and the code page, as the language's runtime gave them.
#include "platform/system.h"

#include "runtime/runtimeError.h"
#include "win32/platform/fileError.h"
#include "win32/platform/patience.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

namespace {

using runtime::ErrorNumber;
using runtime::RuntimeError;

constexpr DWORD longestPath = 32768;

/// A file without line ends must not fill the memory.
constexpr std::size_t longestLine = 1U << 20U;

RuntimeError lastError() {
    return win32::lastFileError(ErrorNumber::fileNotFound);
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

class File {
  public:
    explicit File(const std::string& path)
        : handle_(CreateFileA(path.c_str(), GENERIC_READ,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr)) {
        if (handle_ == INVALID_HANDLE_VALUE)
            throw lastError();
    }
    ~File() { CloseHandle(handle_); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    /// Appends what comes next; false at the end of the file.
    bool read(std::string& text) const {
        std::array<char, 4096> block; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the call
        DWORD count = 0;
        if (ReadFile(handle_, block.data(), static_cast<DWORD>(block.size()), &count, nullptr) == FALSE)
            throw lastError();
        text.append(block.data(), count);
        return count > 0;
    }

  private:
    HANDLE handle_;
};

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

std::string readFirstLine(std::string_view path) {
    const File file{std::string(path)};
    std::string text;
    std::size_t searched = 0;
    std::size_t end = std::string::npos;
    while (end == std::string::npos && text.size() < longestLine && file.read(text)) {
        end = text.find_first_of("\r\n", searched);
        searched = text.size();
    }
    return text.substr(0, std::min(end, longestLine));
}

const std::string& programFolder() {
    static const std::string folder = [] {
        std::string path(longestPath, '\0');
        path.resize(GetModuleFileNameA(nullptr, path.data(), longestPath));
        const std::size_t slash = path.find_last_of('\\');
        constexpr std::size_t root = 2; // the place of the backslash in a drive root
        return path.substr(0, slash == root ? root + 1 : slash);
    }();
    return folder;
}

std::string currentDirectory() {
    std::string folder(longestPath, '\0');
    folder.resize(GetCurrentDirectoryA(longestPath, folder.data()));
    return folder;
}

std::u16string toUtf16(std::string_view text) {
    const int length = static_cast<int>(text.size());
    const int needed = MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
    std::u16string wide(static_cast<std::size_t>(needed), u'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), length, reinterpret_cast<wchar_t*>(wide.data()), needed);
    return wide;
}

std::string toAnsi(std::u16string_view text) {
    const auto* const wide = reinterpret_cast<const wchar_t*>(text.data());
    const int length = static_cast<int>(text.size());
    const int needed = WideCharToMultiByte(CP_ACP, 0, wide, length, nullptr, 0, "?", nullptr);
    std::string ansi(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_ACP, 0, wide, length, ansi.data(), needed, "?", nullptr);
    return ansi;
}

} // namespace platform
