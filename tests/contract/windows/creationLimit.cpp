#include "contract/windows/creationLimit.h"

#include "contract/windows/importHook.h"

#include <windows.h>

#include <commctrl.h>

#include <climits>
#include <memory>
#include <type_traits>

namespace contract {

namespace {

int roomLeft = 0;
bool failedOnce = false;

/// What a function gives that has made nothing.
template <typename Result>
Result nothing() {
    if constexpr (std::is_same_v<Result, int>)
        return -1;
    else
        return {};
}

template <typename Name, typename Function>
struct Limited;

template <typename Name, typename Result, typename... Arguments>
struct Limited<Name, Result WINAPI(Arguments...)> {
    using Function = Result(WINAPI*)(Arguments...);
    inline static Function original = nullptr;
    inline static int calls = 0;

    static Result WINAPI call(Arguments... arguments) {
        ++calls;
        if (roomLeft > 0) {
            --roomLeft;
            return original(arguments...);
        }
        failedOnce = true;
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nothing<Result>();
    }

    static std::unique_ptr<ImportHook> hook(const char* name) {
        return std::make_unique<ImportHook>(name, &call, original);
    }
};

struct Entry {
    const char* name;
    std::unique_ptr<ImportHook> (*hook)(const char* name);
    int& calls;
};

template <typename Name, typename Function>
Entry entryOf(const char* name) {
    return {name, &Limited<Name, Function>::hook, Limited<Name, Function>::calls};
}

#define ENTRY(name) entryOf<struct Name##name, decltype(name)>(#name)
const Entry entries[] = {
    ENTRY(CreateWindowExA),          ENTRY(CreateWindowExW),
    ENTRY(CreateFontIndirectA),      ENTRY(PrivateExtractIconsW),
    ENTRY(CreateIconFromResourceEx), ENTRY(CreateIconIndirect),
    ENTRY(ImageList_Create),         ENTRY(ImageList_Add),
    ENTRY(CreateDIBSection),         ENTRY(CreateBitmap),
    ENTRY(CreateSolidBrush),         ENTRY(CreateCompatibleDC),
};
#undef ENTRY

std::unique_ptr<ImportHook> hook;

} // namespace

CreationLimit::CreationLimit(std::string_view function, int left) {
    roomLeft = left;
    failedOnce = false;
    for (const Entry& entry : entries)
        if (function == entry.name)
            hook = entry.hook(entry.name);
}

CreationLimit::~CreationLimit() {
    hook.reset();
}

bool CreationLimit::met() {
    return failedOnce;
}

std::map<std::string_view, int> creationsOf(const std::function<void()>& action) {
    std::vector<std::unique_ptr<ImportHook>> hooks;
    roomLeft = INT_MAX;
    for (const Entry& entry : entries) {
        entry.calls = 0;
        hooks.push_back(entry.hook(entry.name));
    }
    action();
    std::map<std::string_view, int> called;
    for (const Entry& entry : entries)
        called[entry.name] = entry.calls;
    return called;
}

} // namespace contract
