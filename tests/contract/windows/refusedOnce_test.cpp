// What is asked for once and kept for the run. One refusal is none for ever.
#include "contract/windows/refusedOnce.h"

#include "contract/windows/beside.h"
#include "contract/windows/importHook.h"
#include "contract/windows/ownProcess.h"
#include "platform/hhctrl.h"
#include "platform/screen.h"
#include "platform/shell32.h"
#include "runtime/errorOf.h"
#include "win32/common/systemDialog.h"
#include "win32/common/userWindow.h"
#include "win32/forms/themes.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <uxtheme.h>

#include <cstdint>
#include <cstring>

namespace {

using contract::ImportHook;

HANDLE WINAPI loadNoImage(HINSTANCE /*from*/, LPCSTR /*name*/, UINT /*type*/, int /*width*/, int /*height*/,
                          UINT /*how*/) {
    return nullptr;
}

bool trayGetsIcon() {
    {
        const ImportHook refused("LoadImageA", reinterpret_cast<void*>(&loadNoImage));
        if (platform::programIcon() != platform::HICON::none)
            return false;
    }
    const platform::HICON icon = platform::programIcon();
    return icon != platform::HICON::none && platform::programIcon() == icon;
}

int hooksAsked = 0;

HWINEVENTHOOK WINAPI hookNothing(DWORD /*first*/, DWORD /*last*/, HMODULE /*library*/, WINEVENTPROC /*heard*/,
                                 DWORD /*process*/, DWORD /*thread*/, DWORD /*how*/) {
    ++hooksAsked;
    return nullptr;
}

bool userIsFollowed() {
    const auto asked = [] {
        const ImportHook refused("SetWinEventHook", reinterpret_cast<void*>(&hookNothing));
        hooksAsked = 0;
        win32::followUser();
        return hooksAsked;
    };
    if (asked() != 1 || asked() != 1)
        return false;
    win32::followUser();
    return asked() == 0;
}

ATOM WINAPI registerNothing(const WNDCLASSA* /*description*/) {
    return 0;
}

bool dialogGetsOwner() {
    const HWND asking =
        CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    {
        const ImportHook refused("RegisterClassA", reinterpret_cast<void*>(&registerNothing));
        if (win32::SystemDialog(asking).owner() != nullptr)
            return false;
    }
    for (int times = 0; times < 2; ++times)
        if (!contract::isOfClass(win32::SystemDialog(asking).owner(), "KestrelDialogOwner"))
            return false;
    return DestroyWindow(asking) != FALSE;
}

HMODULE WINAPI loadNothing(const wchar_t* /*name*/, HANDLE /*file*/, DWORD /*flags*/) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

int timesShown = 0;

HWND WINAPI showHelp(HWND /*owner*/, const char* /*file*/, UINT /*command*/, DWORD_PTR /*data*/) {
    ++timesShown;
    return nullptr;
}

int timesOpened = 0;

HTHEME WINAPI openTheme(HWND /*window*/, const wchar_t* /*classes*/) {
    ++timesOpened;
    return nullptr;
}

int timesMeasured = 0;

HRESULT WINAPI measureScreen(HMONITOR /*screen*/, int /*kind*/, UINT* across, UINT* down) {
    ++timesMeasured;
    *across = *down = 96;
    return S_OK;
}

template <typename Function>
FARPROC addressOf(Function* function) {
    FARPROC address = nullptr;
    static_assert(sizeof address == sizeof function);
    std::memcpy(&address, &function, sizeof address);
    return address;
}

/// In place of the system's routines.
FARPROC WINAPI findOurs(HMODULE /*library*/, const char* name) {
    if (reinterpret_cast<std::uintptr_t>(name) <= 0xFFFF)
        return nullptr; // by a number
    if (std::strcmp(name, "HtmlHelpA") == 0)
        return addressOf(&showHelp);
    if (std::strcmp(name, "OpenThemeData") == 0)
        return addressOf(&openTheme);
    return std::strcmp(name, "GetDpiForMonitor") == 0 ? addressOf(&measureScreen) : nullptr;
}

bool helpIsLoaded() {
    const auto failure = [] {
        return runtime::errorOf([] { platform::HtmlHelpA(platform::HWND::none, "C:\\none.chm", 0, 0); });
    };
    const ImportHook viewer("GetProcAddress", reinterpret_cast<void*>(&findOurs));
    {
        const ImportHook refused("LoadLibraryExW", reinterpret_cast<void*>(&loadNothing));
        if (failure() != 53)
            return false;
    }
    return failure() == 0 && timesShown == 1;
}

bool themesAreLoaded() {
    const ImportHook routines("GetProcAddress", reinterpret_cast<void*>(&findOurs));
    {
        const ImportHook refused("LoadLibraryExW", reinterpret_cast<void*>(&loadNothing));
        win32::openTheme(nullptr, L"Button");
    }
    win32::openTheme(nullptr, L"Button");
    return timesOpened == 1;
}

bool screenIsMeasured() {
    const ImportHook routines("GetProcAddress", reinterpret_cast<void*>(&findOurs));
    {
        const ImportHook refused("LoadLibraryExW", reinterpret_cast<void*>(&loadNothing));
        if (platform::screenDpi() == 0)
            return false;
    }
    return platform::screenDpi() == 96 && timesMeasured == 1;
}

} // namespace

namespace contract {

int refusedOnceMain() {
    int code = asksAgain;
    int bit = 1;
    for (bool (*const asks)() :
         {trayGetsIcon, userIsFollowed, dialogGetsOwner, helpIsLoaded, themesAreLoaded, screenIsMeasured}) {
        code += asks() ? 0 : bit;
        bit *= 2;
    }
    return code;
}

} // namespace contract

TEST_SUITE_BEGIN("contract/windows/refusedOnce");

TEST_CASE("what has been refused once is asked for again, and then kept") {
    CHECK(contract::exitCodeOfOwn(contract::refusedOnceArgument) == contract::asksAgain);
}

TEST_SUITE_END();
