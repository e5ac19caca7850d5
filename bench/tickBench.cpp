// What stands beside the program while its ticks and its memory are measured (bench/ticking.py, memory.py).
//
//   tick-bench windows N        opens N top-level windows and waits to be ended
//   tick-bench behind WINDOW... puts windows behind all others, the last one at the bottom
//   tick-bench bare             five times a second, until ended: the processes until EAGLE is found,
//                               the titles of all windows four times, one look for a file
//   tick-bench bare-found       the same, but with three passes over the titles that end where a search ends
//   tick-bench bare-seen        as bare, but first shows a window for two seconds
#include "otherWindows.h"
#include "plainWindow.h"

#include <windows.h>

#include <tlhelp32.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

constexpr UINT period = 200; // milliseconds

int putBehind(int count, char** windows) {
    for (int window = 0; window < count; ++window) {
        const auto handle = reinterpret_cast<HWND>(std::strtoull(windows[window], nullptr, 10));
        if (SetWindowPos(handle, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE) == FALSE)
            return 1;
    }
    return 0;
}

std::string folder() {
    std::array<char, MAX_PATH> path{};
    GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return std::string(path.data()).substr(0, std::string_view(path.data()).rfind('\\') + 1);
}

/// `wanted`: text at which the pass ends, in the case in which it stands; null where nothing ends it.
BOOL CALLBACK readTitle(HWND window, LPARAM wanted) {
    std::array<char, 256> title;
    GetWindowTextA(window, title.data(), static_cast<int>(title.size()));
    return wanted == 0 || std::strstr(title.data(), reinterpret_cast<const char*>(wanted)) == nullptr;
}

bool eagleRuns() {
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry{};
    entry.dwSize = sizeof entry;
    bool found = false;
    for (BOOL more = Process32First(snapshot, &entry); more != FALSE && !found;
         more = Process32Next(snapshot, &entry))
        found = lstrcmpiA(entry.szExeFile, "eagle.exe") == 0;
    CloseHandle(snapshot);
    return found;
}

void lookForFile() {
    static const std::string file = folder() + "execute.txt";
    WIN32_FIND_DATAA found;
    if (const HANDLE search = FindFirstFileA(file.c_str(), &found); search != INVALID_HANDLE_VALUE)
        FindClose(search);
}

void CALLBACK tickToEnds(HWND /*window*/, UINT /*message*/, UINT_PTR /*id*/, DWORD /*time*/) {
    constexpr int passes = 4;
    eagleRuns();
    for (int pass = 0; pass < passes; ++pass)
        EnumWindows(readTitle, 0);
    lookForFile();
}

void CALLBACK tickToEditors(HWND /*window*/, UINT /*message*/, UINT_PTR /*id*/, DWORD /*time*/) {
    eagleRuns();
    for (const char* text : {"Board -", "Schematic -", "Library -"})
        EnumWindows(readTitle, reinterpret_cast<LPARAM>(text));
    lookForFile();
}

} // namespace

int main(int count, char** arguments) {
    const std::string_view what = count > 1 ? arguments[1] : "";
    if (what == "windows" && count > 2)
        return bench::openWindows(std::atoi(arguments[2]));
    if (what == "behind")
        return putBehind(count - 2, arguments + 2);
    if (what != "bare" && what != "bare-found" && what != "bare-seen")
        return 1;
    if (what == "bare-seen")
        showPlainWindow();
    SetTimer(nullptr, 0, period, what == "bare-found" ? tickToEditors : tickToEnds);
    return bench::serve();
}
