// What other programs leave on a Windows by the shell's own objects: shortcuts, and text in the clipboard.
#include "contract/world.h"

#include "win32/common/wide.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

#include <cstring>

namespace contract {

void World::makeShortcut(const std::string& path, const std::string& target, const std::string& arguments) {
    const HRESULT begun = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    IShellLinkW* link = nullptr;
    REQUIRE(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                             reinterpret_cast<void**>(&link)) == S_OK);
    IPersistFile* file = nullptr;
    const HRESULT found = link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file));
    link->SetPath(win32::toWide(target).c_str());
    link->SetArguments(win32::toWide(arguments).c_str());
    const HRESULT saved = found == S_OK ? file->Save(win32::toWide(path).c_str(), TRUE) : found;
    if (file != nullptr)
        file->Release();
    link->Release();
    if (SUCCEEDED(begun))
        CoUninitialize();
    REQUIRE(saved == S_OK);
}

void World::putIntoClipboard(std::u16string_view text) {
    const std::size_t size = text.size() * sizeof(char16_t);
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    REQUIRE(block != nullptr);
    std::memcpy(GlobalLock(block), text.data(), size);
    GlobalUnlock(block);
    REQUIRE(until([] { return OpenClipboard(nullptr) != FALSE; }));
    EmptyClipboard();
    const bool taken = SetClipboardData(CF_UNICODETEXT, block) != nullptr;
    CloseClipboard();
    REQUIRE(taken);
}

} // namespace contract
