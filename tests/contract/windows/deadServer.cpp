#include "contract/windows/deadServer.h"

#include "contract/windows/importHook.h"

#include <windows.h>

#include <shellapi.h>

#include <atomic>
#include <memory>
#include <type_traits>
#include <vector>

namespace contract {

namespace {

constexpr DWORD halfAMinute = 30'000;

std::string deadServer;  // with its separators, in lower case
HANDLE answer = nullptr; // signalled once those who wait are let go
std::atomic<bool> alive; // it answers
std::atomic<int> calls_;
std::atomic<int> hanging; // calls that are waited for by the clock
std::atomic<int> waiting_;
std::atomic<int> most_;

char asByte(wchar_t character) {
    return character < 128 ? static_cast<char>(character) : '?';
}
char asByte(char character) {
    return character;
}

/// Whether a path, or the beginning of a command line, is the server's.
template <typename Character>
bool isDead(const Character* path) {
    if (*path == '"')
        ++path;
    for (const char wanted : deadServer) {
        const char seen = asByte(*path++);
        if ((seen == '/' ? '\\' : seen) != wanted)
            return false;
    }
    return !deadServer.empty();
}

/// The first text among what a function is called with.
template <typename First, typename... Rest>
bool namesDead(First first, Rest... rest) {
    if constexpr (std::is_same_v<First, const char*> || std::is_same_v<First, char*> ||
                  std::is_same_v<First, const wchar_t*> || std::is_same_v<First, wchar_t*>) {
        if (first != nullptr)
            return isDead(first);
    }
    if constexpr (sizeof...(Rest) > 0)
        return namesDead(rest...);
    return false;
}

DWORD askDead() {
    ++calls_;
    const int now = ++waiting_;
    for (int before = most_; before < now && !most_.compare_exchange_weak(before, now);) {
    }
    {
        const Hanging here;
        WaitForSingleObject(answer, halfAMinute);
    }
    --waiting_;
    return alive ? ERROR_PATH_NOT_FOUND : ERROR_BAD_NETPATH;
}

/// What a function that opens, starts or counts gives when it fails.
template <typename Result>
Result failed() {
    if constexpr (std::is_pointer_v<Result>)
        return INVALID_HANDLE_VALUE;
    else if constexpr (std::is_same_v<Result, DWORD>)
        return INVALID_FILE_ATTRIBUTES;
    else
        return 0;
}

/// A function of the system that takes a path. `Name` only tells one from the other.
template <typename Name, typename Function>
struct Path;

template <typename Name, typename Result, typename... Arguments>
struct Path<Name, Result WINAPI(Arguments...)> {
    using Function = Result(WINAPI*)(Arguments...);
    inline static Function original = nullptr;

    static Result WINAPI call(Arguments... arguments) {
        if (!namesDead(arguments...))
            return original(arguments...);
        const DWORD error = askDead();
        SetLastError(error);
        return failed<Result>();
    }

    static void hook(const char* name, std::vector<std::unique_ptr<ImportHook>>& hooks) {
        hooks.push_back(std::make_unique<ImportHook>(name, &call, original));
    }
};

std::vector<std::unique_ptr<ImportHook>> hooks;

std::atomic<ULONGLONG> ahead;
ULONGLONG(WINAPI* systemClock)() = nullptr;

ULONGLONG WINAPI shiftedClock() {
    return systemClock() + ahead;
}

decltype(&MsgWaitForMultipleObjects) systemWait = nullptr;

DWORD WINAPI waitByClock(DWORD count, const HANDLE* objects, BOOL all, DWORD milliseconds, DWORD input) {
    if (count == 0 || hanging == 0)
        return systemWait(count, objects, all, milliseconds, input);
    const DWORD woken = systemWait(count, objects, all, 0, input);
    if (woken == WAIT_TIMEOUT)
        passTime(static_cast<int>(milliseconds));
    return woken;
}

} // namespace

Hanging::Hanging() {
    ++hanging;
}

Hanging::~Hanging() {
    --hanging;
}

DeadServer::DeadServer(const std::string& name, Waiting waiting) {
    deadServer = "\\\\" + name + "\\";
    answer = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    alive = false;
    calls_ = 0;
    most_ = 0;
#define HOOK(function) Path<struct Name##function, decltype(function)>::hook(#function, hooks)
    HOOK(FindFirstFileA);
    HOOK(FindFirstFileW);
    HOOK(GetFileAttributesA);
    HOOK(GetFileAttributesW);
    HOOK(SearchPathA);
    HOOK(SearchPathW);
    HOOK(PrivateExtractIconsA);
    HOOK(PrivateExtractIconsW);
    HOOK(ExtractIconExA);
    HOOK(ExtractIconExW);
    HOOK(CreateProcessA);
    HOOK(CreateProcessW);
#undef HOOK
    hooks.push_back(std::make_unique<ImportHook>("GetTickCount64", &shiftedClock, systemClock));
    if (waiting == Waiting::truly)
        return;
    hooks.push_back(std::make_unique<ImportHook>("MsgWaitForMultipleObjects", &waitByClock, systemWait));
}

DeadServer::~DeadServer() {
    SetEvent(answer);
    while (waiting_ > 0)
        Sleep(1);
    hooks.clear();
    deadServer.clear();
    CloseHandle(answer);
    ahead = 0;
}

void DeadServer::revive() {
    alive = true;
    SetEvent(answer);
}

int DeadServer::calls() {
    return calls_;
}

int DeadServer::mostAtOnce() {
    return most_;
}

int DeadServer::waiting() {
    return waiting_;
}

void passTime(int milliseconds) {
    ahead += static_cast<ULONGLONG>(milliseconds);
}

std::int64_t clock() {
    return static_cast<std::int64_t>(GetTickCount64());
}

} // namespace contract
