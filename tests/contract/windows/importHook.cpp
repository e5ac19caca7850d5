#include "contract/windows/importHook.h"

#include <windows.h>

#include <cstring>

namespace contract {

namespace {

template <typename What>
What* at(DWORD offset) {
    auto* const base = reinterpret_cast<char*>(GetModuleHandleA(nullptr));
    return reinterpret_cast<What*>(base + offset);
}

/// Where this program has the address of a function that it imports by name; null if it does not.
void** importedAddress(const char* function) {
    const auto* const dos = at<IMAGE_DOS_HEADER>(0);
    const auto* const headers = at<IMAGE_NT_HEADERS>(static_cast<DWORD>(dos->e_lfanew));
    const IMAGE_DATA_DIRECTORY& directory =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* library = at<IMAGE_IMPORT_DESCRIPTOR>(directory.VirtualAddress); library->Name != 0;
         ++library) {
        const auto* names = at<IMAGE_THUNK_DATA>(library->OriginalFirstThunk);
        auto* addresses = at<IMAGE_THUNK_DATA>(library->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++addresses) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal))
                continue;
            const auto* const entry = at<IMAGE_IMPORT_BY_NAME>(static_cast<DWORD>(names->u1.AddressOfData));
            if (std::strcmp(reinterpret_cast<const char*>(&entry->Name[0]), function) == 0)
                return reinterpret_cast<void**>(&addresses->u1.Function);
        }
    }
    return nullptr;
}

void put(void** place, void* address) {
    DWORD before = 0;
    VirtualProtect(place, sizeof *place, PAGE_READWRITE, &before);
    *place = address;
    VirtualProtect(place, sizeof *place, before, &before);
}

} // namespace

ImportHook::ImportHook(const char* function) : place_(importedAddress(function)) {
    if (place_ != nullptr)
        original_ = *place_;
}

ImportHook::ImportHook(const char* function, void* replacement) : ImportHook(function) {
    replaceBy(replacement);
}

void ImportHook::replaceBy(void* replacement) {
    if (place_ != nullptr)
        put(place_, replacement);
}

ImportHook::~ImportHook() {
    if (place_ != nullptr)
        put(place_, original_);
}

} // namespace contract
