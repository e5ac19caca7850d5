// Libraries of the system that are bound when they are first needed.
#include "contract/windows/importHook.h"
#include "contract/windows/ownProcess.h"
#include "contract/windows/withoutLibraries.h"
#include "platform/comdlg32.h"
#include "platform/hhctrl.h"
#include "platform/shell32.h"
#include "runtime/errorOf.h"
#include "win32/common/components.h"
#include "win32/common/systemLibrary.h"
#include "win32/forms/themes.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <combaseapi.h>
#include <shlobj.h>

#include <string>

namespace {

HMODULE WINAPI loadNothing(const wchar_t* /*name*/, HANDLE /*file*/, DWORD /*flags*/) {
    SetLastError(ERROR_MOD_NOT_FOUND);
    return nullptr;
}

bool helpIsMissing() {
    return runtime::errorOf([] { platform::HtmlHelpA(platform::HWND::none, "C:\\none.chm", 0, 0); }) == 53;
}

bool dialogsAreMissing() {
    char chosen[MAX_PATH] = {};
    platform::OPENFILENAMEA record;
    record.lStructSize = platform::fileDialogRecordSize;
    record.lpstrFile = &chosen[0];
    record.nMaxFile = MAX_PATH;
    return platform::GetOpenFileNameA(record) == 0 && platform::GetSaveFileNameA(record) == 0;
}

bool componentsAreMissing() {
    win32::keepComponents();
    const win32::Components components;
    return components.make(CLSID_ShellLink, IID_IShellLinkW) == nullptr;
}

/// The shell opens on another thread, whose components end with its work.
bool ownThreadHasComponentsFirst() {
    platform::ShellExecuteA(platform::HWND::none, "open", "C:\\none\\none.xyz", "", "", SW_SHOWNORMAL);
    APTTYPE type = APTTYPE_CURRENT;
    APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
    return CoGetApartmentType(&type, &qualifier) == S_OK && type == APTTYPE_MAINSTA;
}

} // namespace

namespace contract {

int withoutLibrariesMain() {
    {
        const ImportHook hook("LoadLibraryExW", reinterpret_cast<void*>(&loadNothing));
        if (hook.original() == nullptr)
            return 1;
        if (!helpIsMissing())
            return 2;
        if (!dialogsAreMissing())
            return 3;
        if (!componentsAreMissing())
            return 4;
        if (win32::openTheme(nullptr, L"Button") != nullptr)
            return 5;
    }
    return ownThreadHasComponentsFirst() ? goesWithout : 6;
}

} // namespace contract

TEST_SUITE_BEGIN("contract/windows/libraries");

TEST_CASE("a library of the system comes from the system's folder, one that is not there is none") {
    char folder[MAX_PATH] = {};
    GetSystemDirectoryA(folder, MAX_PATH);
    for (const wchar_t* name : {L"uxtheme.dll", L"hhctrl.ocx", L"comdlg32.dll", L"ole32.dll"}) {
        const HMODULE library = win32::systemLibrary(name);
        REQUIRE(library != nullptr);
        char path[MAX_PATH] = {};
        GetModuleFileNameA(library, path, MAX_PATH);
        CHECK(_strnicmp(path, folder, std::string(folder).size()) == 0);
    }
    CHECK(win32::systemLibrary(L"kestrel-has-no-such.dll") == nullptr);
    const bool missing = win32::routineOf<FARPROC>(win32::systemLibrary(L"uxtheme.dll"), "NoSuch") == nullptr;
    CHECK(missing);
    const bool nowhere = win32::routineOf<FARPROC>(nullptr, "OpenThemeData") == nullptr;
    CHECK(nowhere);
}

TEST_CASE("what the system has is bound") {
    const win32::Components components;
    auto* const made = static_cast<IUnknown*>(components.make(CLSID_ShellLink, IID_IShellLinkW));
    REQUIRE(made != nullptr);
    made->Release();
    CHECK(components.make(GUID_NULL, IID_IShellLinkW) == nullptr);
}

TEST_CASE("without its library each says that it fails") {
    CHECK(contract::exitCodeOfOwn(contract::withoutLibrariesArgument) == contract::goesWithout);
}

TEST_SUITE_END();
