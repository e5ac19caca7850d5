#include "win32/platform/paths.h"

namespace win32 {

std::wstring shortName(const std::wstring& path) {
    std::wstring name(longestPath, L'\0');
    name.resize(GetShortPathNameW(path.c_str(), name.data(), longestPath));
    return name;
}

} // namespace win32
