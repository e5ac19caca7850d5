#include "check/traces.h"
#include "check/workplace.h"

#include <string>
#include <vector>

namespace traces {

static constexpr wchar_t icons[] = L"Control Panel\\NotifyIconSettings";

static std::vector<std::wstring> keysIn(HKEY key) {
    std::vector<std::wstring> names;
    wchar_t name[256] = {};
    DWORD size = 256;
    for (DWORD index = 0;
         RegEnumKeyExW(key, index, name, &size, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++index) {
        names.emplace_back(name);
        size = 256;
    }
    return names;
}

static std::wstring programOf(HKEY key, const std::wstring& name) {
    wchar_t path[1024] = {};
    DWORD size = sizeof path - sizeof(wchar_t);
    RegGetValueW(key, name.c_str(), L"ExecutablePath", RRF_RT_REG_SZ, nullptr, path, &size);
    return path;
}

void remove() {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, icons, 0, KEY_READ | DELETE, &key) != ERROR_SUCCESS)
        return;
    const std::wstring folder = std::wstring(L"\\") + workplace::folderName + L"\\";
    for (const std::wstring& name : keysIn(key)) {
        // The path may begin with the name of a known folder instead of the folder.
        if (programOf(key, name).find(folder) != std::wstring::npos)
            RegDeleteTreeW(key, name.c_str());
    }
    RegCloseKey(key);
}

} // namespace traces
