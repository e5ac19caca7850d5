#include "contract/windows/moreRights.h"

#include "contract/windows/importHook.h"

#include <windows.h>

#include <shellapi.h>

#include <atomic>
#include <optional>

namespace contract {

namespace {

constexpr DWORD elevationRequired = 740;
constexpr DWORD patience = 30'000; // milliseconds that the user thinks at most

std::wstring program;
std::atomic<int> asked;
std::atomic<int> waiting;
std::atomic<bool> agrees;
std::atomic<DWORD> flagsSeen;
HANDLE answered = nullptr;

/// Whether a command line names the program, with or without quotes and its ending.
bool startsProgram(const wchar_t* line) {
    const std::wstring bare = program.substr(0, program.find_last_of(L'.'));
    return std::wstring(line + (*line == L'"' ? 1 : 0)).starts_with(bare);
}

std::wstring wide(const char* text) {
    std::wstring converted;
    for (; *text != '\0'; ++text)
        converted += static_cast<unsigned char>(*text);
    return converted;
}

decltype(&::CreateProcessA) systemCreateA = nullptr;
decltype(&::CreateProcessW) systemCreateW = nullptr;
decltype(&::ShellExecuteExA) systemExecuteA = nullptr;
decltype(&::ShellExecuteExW) systemExecuteW = nullptr;

BOOL WINAPI createA(LPCSTR name, LPSTR line, LPSECURITY_ATTRIBUTES process, LPSECURITY_ATTRIBUTES thread,
                    BOOL inherit, DWORD flags, LPVOID environment, LPCSTR folder, LPSTARTUPINFOA start,
                    LPPROCESS_INFORMATION made) {
    flagsSeen = flags;
    if (!startsProgram(wide(line).c_str()))
        return systemCreateA(name, line, process, thread, inherit, flags, environment, folder, start, made);
    SetLastError(elevationRequired);
    return FALSE;
}

BOOL WINAPI createW(LPCWSTR name, LPWSTR line, LPSECURITY_ATTRIBUTES process, LPSECURITY_ATTRIBUTES thread,
                    BOOL inherit, DWORD flags, LPVOID environment, LPCWSTR folder, LPSTARTUPINFOW start,
                    LPPROCESS_INFORMATION made) {
    flagsSeen = flags;
    if (!startsProgram(line))
        return systemCreateW(name, line, process, thread, inherit, flags, environment, folder, start, made);
    SetLastError(elevationRequired);
    return FALSE;
}

bool userAgrees() {
    ++waiting;
    ++asked;
    WaitForSingleObject(answered, patience);
    --waiting;
    return agrees;
}

BOOL refused() {
    SetLastError(ERROR_CANCELLED);
    return FALSE;
}

BOOL WINAPI executeA(SHELLEXECUTEINFOA* call) {
    return userAgrees() ? systemExecuteA(call) : refused();
}

BOOL WINAPI executeW(SHELLEXECUTEINFOW* call) {
    return userAgrees() ? systemExecuteW(call) : refused();
}

struct Hooks {
    ImportHook createA{"CreateProcessA", &contract::createA, systemCreateA};
    ImportHook createW{"CreateProcessW", &contract::createW, systemCreateW};
    ImportHook executeA{"ShellExecuteExA", &contract::executeA, systemExecuteA};
    ImportHook executeW{"ShellExecuteExW", &contract::executeW, systemExecuteW};
};
std::optional<Hooks> hooks;

} // namespace

MoreRights::MoreRights(const std::string& path) {
    program = wide(path.c_str());
    asked = 0;
    agrees = false;
    answered = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    hooks.emplace();
}

MoreRights::~MoreRights() {
    SetEvent(answered);
    while (waiting > 0)
        Sleep(1);
    hooks.reset();
    CloseHandle(answered);
}

int MoreRights::questions() {
    return asked;
}

unsigned long MoreRights::startFlags() {
    return flagsSeen;
}

void MoreRights::answer(bool yes) {
    agrees = yes;
    SetEvent(answered);
}

} // namespace contract
