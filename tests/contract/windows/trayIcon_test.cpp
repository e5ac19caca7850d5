// A shell that hangs, or does what it is told too late to be heard.
#include "contract/windows/silentThread.h"
#include "contract/world.h"
#include "platform/shell32.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <shellapi.h>

#include <chrono>

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* trayClass = "Shell_TrayWnd";
constexpr std::chrono::seconds soon{2};

/// What the shell's window has been told, as Wine tells it: the message in place of the kind of data.
struct Shell {
    bool late = false; ///< it does what it is told, too late to be heard
    bool there = false;
    int adds = 0;
};
Shell shell;

LRESULT CALLBACK answerAsShell(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_COPYDATA)
        return DefWindowProcA(window, message, wParam, lParam);
    switch (reinterpret_cast<const COPYDATASTRUCT*>(lParam)->dwData) {
    case NIM_ADD: {
        ++shell.adds;
        const bool added = !shell.there && !shell.late;
        shell.there = true;
        return added ? TRUE : FALSE;
    }
    case NIM_MODIFY:
        return shell.there ? TRUE : FALSE;
    default:
        return FALSE;
    }
}

void registerShell() {
    WNDCLASSA description{};
    description.lpfnWndProc = answerAsShell;
    description.hInstance = GetModuleHandleA(nullptr);
    description.lpszClassName = trayClass;
    RegisterClassA(&description); // once is enough
}

bool addIcon() {
    platform::NOTIFYICONDATA record;
    record.uID = 2;
    return platform::Shell_NotifyIconA(NIM_ADD, record);
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/trayIcon");

TEST_CASE("an icon that the shell adds too late counts as added") {
    if (contract::worldKind() != contract::WorldKind::wine)
        return; // the true shell's window is in front of any other
    const contract::World world;
    registerShell();
    shell = {};
    const HWND window = contract::makeTopmost(trayClass, "");
    REQUIRE(FindWindowA(trayClass, nullptr) == window);
    CHECK(addIcon());
    CHECK_FALSE(shell.adds == 0);
    shell = {};
    shell.late = true;
    CHECK(addIcon());
    CHECK(shell.adds == 1);
    DestroyWindow(window);
}

TEST_CASE("a shell that hangs is waited for once") {
    if (contract::worldKind() != contract::WorldKind::wine)
        return;
    const contract::World world;
    registerShell();
    const contract::SilentThread hanging(trayClass, "");
    REQUIRE(FindWindowA(trayClass, nullptr) == win32::native(hanging.window()));
    const auto begin = Clock::now();
    for (int times = 0; times < 20; ++times)
        CHECK_FALSE(addIcon());
    CHECK(Clock::now() - begin < soon);
}

TEST_SUITE_END();
