// What the system may do to a toolbar's form in the moment in which Form_Resize has it out of its host: its
// place, which was one in the host, is one on another screen then.
#include "contract/windows/files.h"
#include "contract/windows/importHook.h"
#include "contract/world.h"
#include "platform/user32.h"
#include "toolbars/frmToolbar.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <string>

namespace {

using contract::World;
using win32::native;

constexpr UINT beforeParentMessage = 0x02E2; // WM_DPICHANGED_BEFOREPARENT
constexpr UINT afterParentMessage = 0x02E3;  // WM_DPICHANGED_AFTERPARENT

constexpr WPARAM fine = MAKEWPARAM(192, 192);

/// A toolbar of eleven buttons in three rows, in another program's window.
class HostedToolbar {
  public:
    HostedToolbar() {
        std::string settings = "[schem]\r\n";
        for (int row = 1; row <= 11; ++row) {
            const std::string number = std::to_string(row);
            settings += number + "name=b\r\n" + number + "path=p\r\n" + number + "dialog=0\r\n" + number +
                        "type=1\r\n";
        }
        contract::writeWholeFile(World::settingsPath(), settings);
        form.loadVarBar();
        form.eagHND = world.openWindow("host", {100, 120, 900, 720});
        form.show();
        platform::SetParent(form.window(), form.eagHND);
        platform::MoveWindow(form.window(), 20, 20, 128, 300, true);
        form.Form_Resize();
    }

    HWND window() { return native(form.window()); }
    RECT place() {
        RECT rect{};
        GetWindowRect(window(), &rect);
        return rect;
    }
    RECT client() {
        RECT rect{};
        GetClientRect(window(), &rect);
        return rect;
    }
    int rows() { return form.resolution().toPixels(form.toolbar.height()); }

    World world;
    toolbars::frmToolbarSCH form;
};

bool operator==(const RECT& one, const RECT& other) {
    return EqualRect(&one, &other) != FALSE;
}

/// Which of two top-level windows is the first in the order of windows.
HWND frontOf(HWND one, HWND other) {
    HWND seen = GetTopWindow(nullptr);
    while (seen != nullptr && seen != one && seen != other)
        seen = GetWindow(seen, GW_HWNDNEXT);
    return seen;
}

HWND(WINAPI* put)(HWND, HWND) = nullptr;
int messages = 0;

/// The system tells a window that has come out that it stands on a finer screen now.
HWND WINAPI putAndTell(HWND window, HWND parent) {
    const HWND former = put(window, parent);
    if (parent != nullptr)
        return former;
    ++messages;
    RECT suggested{2000, 10, 2300, 500};
    SendMessageA(window, WM_DPICHANGED, fine, reinterpret_cast<LPARAM>(&suggested));
    return former;
}

LRESULT(WINAPI* answer)(WNDPROC, HWND, UINT, WPARAM, LPARAM) = nullptr;
int thinFrames = 0;

/// The system gives windows on the screen of the main one, which is coarser, a thinner frame.
LRESULT WINAPI frameByScreen(WNDPROC behind, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = answer(behind, window, message, wParam, lParam);
    if (message == WM_NCCALCSIZE && GetAncestor(window, GA_PARENT) == GetDesktopWindow()) {
        ++thinFrames;
        reinterpret_cast<RECT*>(lParam)->top -= 10;
    }
    return result;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/formOutOfHost");

TEST_CASE("a dpi message that comes while Form_Resize has the form out of the host is ignored") {
    HostedToolbar bar;
    const RECT before = bar.place();
    const forms::Resolution resolution = bar.form.resolution();
    messages = 0;
    {
        const contract::ImportHook hook("SetParent", &putAndTell, put);
        REQUIRE(hook.original() != nullptr);
        bar.form.Form_Resize();
    }
    CHECK(messages == 1);
    CHECK(bar.form.resolution() == resolution);
    CHECK(bar.place() == before);
    CHECK(GetAncestor(bar.window(), GA_PARENT) == native(bar.form.eagHND));
}

TEST_CASE("the dpi messages of windows in other windows change nothing: the tick follows, once") {
    HostedToolbar bar;
    const RECT before = bar.place();
    const forms::Resolution resolution = bar.form.resolution();
    for (const UINT message : {beforeParentMessage, afterParentMessage}) {
        SendMessageA(bar.window(), message, 0, 0);
        SendMessageA(native(bar.form.toolbar.hWnd()), message, 0, 0);
        CHECK(bar.form.resolution() == resolution);
        CHECK(bar.place() == before);
    }
    // With both behind it a toolbar stands where it would without them.
    const forms::Resolution twice(2 * resolution.dpi());
    RECT host{};
    MapWindowPoints(native(bar.form.eagHND), nullptr, reinterpret_cast<POINT*>(&host), 1);
    // It stays in the host meanwhile, and the host where it is: another one may be in front.
    messages = 0;
    const HWND inFront = native(bar.world.openWindow("another host", {920, 120, 1400, 720}));
    {
        const contract::ImportHook hook("SetParent", &putAndTell, put);
        REQUIRE(hook.original() != nullptr);
        bar.form.followResolution(twice);
    }
    CHECK(messages == 0);
    CHECK(frontOf(native(bar.form.eagHND), inFront) == inFront);
    SendMessageA(bar.window(), afterParentMessage, 0, 0);
    const RECT after = bar.place();
    CHECK(after.left - host.left == 2 * (before.left - host.left));
    CHECK(after.top - host.top == 2 * (before.top - host.top));
    CHECK(bar.client().bottom == 2 * 66);
}

TEST_CASE("a height that is set outside is right in the host, whatever frame the form would have outside") {
    HostedToolbar bar;
    const RECT before = bar.place();
    REQUIRE(bar.client().bottom == bar.rows());
    thinFrames = 0;
    const contract::ImportHook hook("CallWindowProcA", &frameByScreen, answer);
    REQUIRE(hook.original() != nullptr);
    for (const int width : {60, 300, 128}) {
        CAPTURE(width);
        platform::MoveWindow(bar.form.window(), 20, 20, width, 300, true);
        // The system reckons the frame anew in the host.
        SetWindowPos(bar.window(), nullptr, 0, 0, 0, 0,
                     SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        CHECK(bar.client().bottom == bar.rows());
    }
    CHECK(thinFrames > 0);
    const RECT after = bar.place();
    CHECK(after.right - after.left == before.right - before.left);
    CHECK(after.bottom - after.top == before.bottom - before.top);
    CHECK(after.top == before.top);
    CHECK(bar.client().bottom == bar.rows());
}

TEST_SUITE_END();
