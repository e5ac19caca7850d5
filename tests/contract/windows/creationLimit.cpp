#include "contract/windows/creationLimit.h"

#include "contract/windows/importHook.h"

#include <windows.h>

#include <commctrl.h>
#include <objbase.h>
#include <olectl.h>

#include <memory>
#include <type_traits>

namespace contract {

namespace {

int roomLeft = 0;
bool failedOnce = false;

/// What a function gives that has made nothing.
template <typename Result, bool isNumber = std::is_same_v<Result, int> || std::is_same_v<Result, HRESULT>>
Result nothing() {
    if constexpr (std::is_same_v<Result, HRESULT>)
        return E_OUTOFMEMORY;
    else if constexpr (isNumber)
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

    static Result WINAPI call(Arguments... arguments) {
        if (roomLeft > 0) {
            --roomLeft;
            return original(arguments...);
        }
        failedOnce = true;
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nothing<Result>();
    }

    static std::unique_ptr<ImportHook> hook(const char* name) {
        auto made = std::make_unique<ImportHook>(name, reinterpret_cast<void*>(&call));
        original = reinterpret_cast<Function>(made->original());
        return made;
    }
};

std::unique_ptr<ImportHook> hook;

} // namespace

CreationLimit::CreationLimit(std::string_view function, int left) {
    roomLeft = left;
    failedOnce = false;
#define LIMIT(name)                                                                                          \
    if (function == #name)                                                                                   \
    hook = Limited<struct Name##name, decltype(name)>::hook(#name)
    LIMIT(CreateWindowExA);
    LIMIT(CreateWindowExW);
    LIMIT(CreateFontIndirectA);
    LIMIT(PrivateExtractIconsW);
    LIMIT(CreateIconFromResourceEx);
    LIMIT(CreateIconIndirect);
    LIMIT(ImageList_Create);
    LIMIT(ImageList_Add);
    LIMIT(CreateDIBSection);
    LIMIT(CreateBitmap);
    LIMIT(CreateSolidBrush);
    LIMIT(CreateCompatibleDC);
    LIMIT(OleLoadPicture);
#undef LIMIT
}

CreationLimit::~CreationLimit() {
    hook.reset();
}

bool CreationLimit::met() {
    return failedOnce;
}

} // namespace contract
