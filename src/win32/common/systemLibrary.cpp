#include "win32/common/systemLibrary.h"

#include <array>
#include <string>

namespace win32 {

HMODULE systemLibrary(const wchar_t* name) {
    std::array<wchar_t, MAX_PATH> folder{};
    const UINT length = GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    if (length == 0 || length >= folder.size())
        return nullptr;
    const std::wstring path = std::wstring(folder.data(), length) + L"\\" + name;
    // What it needs itself is looked for beside it.
    return LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

} // namespace win32
