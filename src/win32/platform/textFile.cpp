#include "platform/textFile.h"

#include "win32/platform/fileError.h"

#include <windows.h>

#include <string>

namespace {

runtime::RuntimeError lastError() {
    return win32::lastFileError(runtime::ErrorNumber::pathFileAccess);
}

/// With the right to append alone, each writing goes behind what is there at that moment.
void write(std::string_view path, std::string_view text, DWORD access, DWORD disposition) {
    const HANDLE file =
        CreateFileA(std::string(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        throw lastError();
    DWORD written = 0;
    const BOOL done = WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    const DWORD failure = GetLastError();
    CloseHandle(file);
    SetLastError(failure);
    if (done == FALSE)
        throw lastError();
    if (written != text.size())
        throw runtime::RuntimeError(runtime::ErrorNumber::diskFull);
}

} // namespace

namespace platform {

void appendToFile(std::string_view path, std::string_view text) {
    write(path, text, FILE_APPEND_DATA | SYNCHRONIZE, OPEN_ALWAYS);
}

void writeFile(std::string_view path, std::string_view text) {
    write(path, text, GENERIC_WRITE, CREATE_ALWAYS);
}

} // namespace platform
