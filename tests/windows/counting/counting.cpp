// In a program that counts what of the Windows side runs (KESTREL_COUNT): sees to it that the counts are
// written.
#include <windows.h>

#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" {
void __gcov_dump();
[[noreturn]] void __real__exit(int code);
[[noreturn]] void __wrap__exit(int code);
/// The library's own state, as its headers have it.
extern struct {
    void* list;
    unsigned dumped : 1;
    unsigned runCounted : 1;
} __gcov_root;
}

namespace {

SRWLOCK writing = SRWLOCK_INIT;

/// The folder for what this process writes at that turn.
std::string folder(unsigned turn) {
    static const std::uint64_t start = [] {
        FILETIME now;
        GetSystemTimePreciseAsFileTime(&now);
        return (std::uint64_t{now.dwHighDateTime} << 32U) + now.dwLowDateTime + GetCurrentProcessId();
    }();
    return "Z:/project/build/counts/" + std::to_string(start) + "-" + std::to_string(turn);
}

unsigned turn = 0;

void chooseFolder() {
    ++turn;
    _putenv(("GCOV_PREFIX=" + folder(turn)).c_str());
}

void removeFolder(const std::string& path) {
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA((path + "/*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        const std::string inside = path + "/" + found.cFileName;
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            DeleteFileA(inside.c_str());
        else if (found.cFileName[0] != '.')
            removeFolder(inside);
    } while (FindNextFileA(search, &found) != FALSE);
    FindClose(search);
    RemoveDirectoryA(path.c_str());
}

/// A folder of its own each time: the library would add to its counts what is there already, which is those.
/// The one before stays, since whoever ends the program may do so now.
void writeCounts() {
    chooseFolder();
    __gcov_root.dumped = 0;
    __gcov_dump();
    if (turn > 2)
        removeFolder(folder(turn - 2));
}

/// The scenes end most programs by force.
DWORD WINAPI writeNowAndThen(void* /*nothing*/) {
    for (;;) {
        Sleep(1000);
        AcquireSRWLockExclusive(&writing);
        writeCounts();
        ReleaseSRWLockExclusive(&writing);
    }
}

/// The contract tests end by themselves, and count their own threads and calls.
const bool begun = [] {
    chooseFolder();
    if (std::string(GetCommandLineA()).find("contract-tests") == std::string::npos)
        CloseHandle(CreateThread(nullptr, 0, writeNowAndThen, nullptr, 0, nullptr));
    return true;
}();

} // namespace

/// The program leaves by way of this one, and destroys nothing.
void __wrap__exit(int code) {
    AcquireSRWLockExclusive(&writing);
    writeCounts();
    __real__exit(code);
}
