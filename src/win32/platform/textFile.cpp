#include "platform/textFile.h"

#include "win32/platform/fileError.h"
#include "win32/platform/paths.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string>

namespace {

/// A file without line ends must not fill the memory.
constexpr std::size_t longestLine = 1U << 20U;

/// The error for the last failure in reading, and in writing: they differ in what has no number of its own.
runtime::RuntimeError readError() {
    return win32::lastFileError(runtime::ErrorNumber::fileNotFound);
}

runtime::RuntimeError writeError() {
    return win32::lastFileError(runtime::ErrorNumber::pathFileAccess);
}

class SourceFile {
  public:
    explicit SourceFile(const std::string& path)
        : handle_(CreateFileW(win32::widePath(path).c_str(), GENERIC_READ,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr)) {
        if (handle_ == INVALID_HANDLE_VALUE)
            throw readError();
    }
    ~SourceFile() { CloseHandle(handle_); }
    SourceFile(const SourceFile&) = delete;
    SourceFile& operator=(const SourceFile&) = delete;

    /// Appends what comes next; false at the end of the file.
    bool read(std::string& text) const {
        std::array<char, 4096> block; // filled by the call
        DWORD count = 0;
        if (ReadFile(handle_, block.data(), static_cast<DWORD>(block.size()), &count, nullptr) == FALSE)
            throw readError();
        text.append(block.data(), count);
        return count > 0;
    }

  private:
    HANDLE handle_;
};

/// With the right to append alone, each writing goes behind what is there at that moment.
void write(std::string_view path, std::string_view text, DWORD access, DWORD disposition) {
    const HANDLE file = CreateFileW(win32::widePath(path).c_str(), access,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        throw writeError();
    DWORD written = 0;
    const BOOL done = WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    const DWORD failure = GetLastError();
    CloseHandle(file);
    SetLastError(failure);
    if (done == FALSE)
        throw writeError();
    if (written != text.size())
        throw runtime::RuntimeError(runtime::ErrorNumber::diskFull);
}

} // namespace

namespace platform {

std::string readFirstLine(std::string_view path) {
    const SourceFile file{std::string(path)};
    std::string text;
    std::size_t searched = 0;
    std::size_t end = std::string::npos;
    while (end == std::string::npos && text.size() < longestLine && file.read(text)) {
        end = text.find_first_of("\r\n", searched);
        searched = text.size();
    }
    return text.substr(0, std::min(end, longestLine));
}

void appendToFile(std::string_view path, std::string_view text) {
    write(path, text, FILE_APPEND_DATA | SYNCHRONIZE, OPEN_ALWAYS);
}

void writeFile(std::string_view path, std::string_view text) {
    write(path, text, GENERIC_WRITE, CREATE_ALWAYS);
}

} // namespace platform
