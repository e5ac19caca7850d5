#include "win32/platform/helpFile.h"

#include "win32/common/wide.h"
#include "win32/platform/paths.h"

#include <windows.h>

#include <shlobj.h>

namespace win32 {

namespace {

std::wstring temporaryFolder() {
    std::wstring folder(MAX_PATH + 1, L'\0');
    folder.resize(GetTempPathW(MAX_PATH + 1, folder.data()));
    return folder;
}

std::wstring sharedFolder() {
    std::wstring folder(MAX_PATH, L'\0');
    if (FAILED(SHGetFolderPathW(nullptr, CSIDL_COMMON_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder.data())))
        return {};
    folder.resize(folder.find(L'\0'));
    return folder + L'\\';
}

bool isExpressed(const std::wstring& path) {
    return toWide(toText(path)) == path;
}

} // namespace

std::string helpFileForViewer(const char* file) {
    const std::wstring path = widePath(file);
    if (isExpressed(path))
        return file;
    const std::wstring name = path.substr(path.find_last_of(L'\\') + 1);
    for (const std::wstring& folder : {temporaryFolder(), sharedFolder()}) {
        const std::wstring copy = folder + name;
        const bool there = !folder.empty() && CopyFileW(path.c_str(), copy.c_str(), FALSE) != FALSE;
        // One that is open in a viewer cannot be written anew, and is as good.
        if (!there && (folder.empty() || GetFileAttributesW(copy.c_str()) == INVALID_FILE_ATTRIBUTES))
            continue;
        std::string text = pathText(copy);
        if (isExpressed(widePath(text)))
            return text;
    }
    return file;
}

} // namespace win32
