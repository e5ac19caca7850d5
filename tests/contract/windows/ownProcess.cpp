#include "contract/windows/ownProcess.h"

#include "contract/windows/files.h"

#include <windows.h>

#include <string>

namespace contract {

int exitCodeOfOwn(const char* argument) {
    constexpr DWORD patience = 60'000; // milliseconds
    std::string line = "\"" + ownPath() + "\" " + argument;
    STARTUPINFOA how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION made{};
    if (CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &made) ==
        FALSE)
        return -1;
    const bool ended = WaitForSingleObject(made.hProcess, patience) == WAIT_OBJECT_0;
    DWORD code = 0;
    GetExitCodeProcess(made.hProcess, &code);
    CloseHandle(made.hThread);
    CloseHandle(made.hProcess);
    return ended ? static_cast<int>(code) : -1;
}

} // namespace contract
