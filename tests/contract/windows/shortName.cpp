// The short name of a path, where the tests say so that of a volume that gives none.
#include "win32/platform/paths.h"

#include "contract/windows/strangeFolder.h"

namespace win32 {

std::wstring shortName(const std::wstring& path) {
    if (GetEnvironmentVariableA(contract::noShortNames, nullptr, 0) != 0)
        return path;
    std::wstring name(longestPath, L'\0');
    name.resize(GetShortPathNameW(path.c_str(), name.data(), longestPath));
    return name;
}

} // namespace win32
