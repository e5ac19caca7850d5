#include "win32/common/components.h"

#include "win32/common/systemLibrary.h"

#include <objbase.h>

namespace win32 {

namespace {

/// Asked for each time: a library that there was no room for may be had later.
template <typename Routine>
Routine routine(const char* name) {
    return routineOf<Routine>(systemLibrary(L"ole32.dll"), name);
}

/// What ends them, null if there are none: to end them needs no memory then.
decltype(&CoUninitialize) begin() {
    const auto uninitialize = routine<decltype(&CoUninitialize)>("CoUninitialize");
    const auto initialize = routine<decltype(&CoInitializeEx)>("CoInitializeEx");
    const bool begun = initialize != nullptr && uninitialize != nullptr &&
                       SUCCEEDED(initialize(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE));
    return begun ? uninitialize : nullptr;
}

} // namespace

Components::Components() : end_(begin()) {}

Components::~Components() {
    if (end_ != nullptr)
        end_();
}

void* Components::make(const GUID& what, const GUID& kind) const {
    void* made = nullptr;
    const auto create = routine<decltype(&CoCreateInstance)>("CoCreateInstance");
    const bool done =
        create != nullptr && SUCCEEDED(create(what, nullptr, CLSCTX_INPROC_SERVER, kind, &made));
    return done ? made : nullptr;
}

void keepComponents() {
    static bool kept = false;
    kept = kept || begin() != nullptr;
}

} // namespace win32
