#include "common/journal.h"
#include "common/text.h"

#include <windows.h>

namespace journal {

static HANDLE file = INVALID_HANDLE_VALUE; // open as long as the program runs
static HANDLE turn = nullptr;              // whose turn it is to write, of all threads and programs

std::wstring besideProgram(const wchar_t* variable, const wchar_t* fileName) {
    wchar_t path[MAX_PATH] = {};
    const DWORD length = GetEnvironmentVariableW(variable, path, MAX_PATH);
    if (length > 0 && length < MAX_PATH)
        return path;
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring result(path);
    return result.substr(0, result.rfind(L'\\') + 1) + fileName;
}

void open(const wchar_t* variable, const wchar_t* fileName) {
    file =
        CreateFileW(besideProgram(variable, fileName).c_str(), FILE_APPEND_DATA,
                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS, 0, nullptr);
    turn = CreateMutexW(nullptr, FALSE, L"stage-journal");
}

void write(std::string_view event, std::initializer_list<std::wstring_view> fields) {
    std::string line = std::to_string(GetTickCount()) + '\t' + std::to_string(GetCurrentProcessId()) + '\t';
    line += event;
    for (const std::wstring_view field : fields)
        line += '\t' + text::escaped(field);
    line += '\n';
    DWORD written = 0;
    // Two who append at the same time may get the same place under Wine.
    WaitForSingleObject(turn, INFINITE);
    WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    ReleaseMutex(turn);
}

} // namespace journal
