// What ticking and building toolbars leave behind: counted, since a program that runs all day may leave
// nothing but what it leaves on purpose.
#include "contract/windows/counts.h"
#include "contract/windows/icons.h"
#include "contract/world.h"
#include "core/hauptform.h"
#include "platform/executable.h"
#include "platform/user32.h"
#include "store/buttonLists.h"
#include "store/frmIconChooser.h"
#include "toolbars/frmToolbar.h"
#include "win32/common/messages.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <array>

namespace {

using contract::openHandles;
using contract::openWindows;

void fillBoardButtons() {
    store::boardButtons = {};
    store::boardButtons.redim(20);
    for (int row = 1; row <= 20; ++row) {
        store::ToolButton& button = store::boardButtons[row];
        button.name = "b";
        button.icon = platform::programFolder() + "\\contract-data\\brd.ico,0";
        button.type = 1;
        button.live = 1;
    }
}

BOOL CALLBACK countTips(HWND window, LPARAM counter) {
    std::array<char, 32> name{};
    GetClassNameA(window, name.data(), static_cast<int>(name.size()));
    *reinterpret_cast<int*>(counter) += lstrcmpiA(name.data(), TOOLTIPS_CLASSA) == 0 ? 1 : 0;
    return TRUE;
}

/// Of this thread.
int tipWindows() {
    int found = 0;
    EnumThreadWindows(GetCurrentThreadId(), countTips, reinterpret_cast<LPARAM>(&found));
    return found;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/handles");

TEST_CASE("ticks leave nothing open: the snapshot of a walk lasts until the next tick") {
    const contract::World world;
    core::Hauptform form;
    form.setWindow();
    const int before = openHandles();
    constexpr int ticks = 100;
    for (int tick = 0; tick < ticks; ++tick)
        form.setWindow();
    CHECK(openHandles() == before);
}

TEST_CASE("building a toolbar again and again leaves neither handles nor windows") {
    const contract::World world;
    fillBoardButtons();
    toolbars::frmToolbarBRD form;
    form.load();
    form.show();
    const auto build = [&form] {
        form.loadVarBar();
        win32::servePending();
    };
    build();
    const int handles = openHandles();
    const int windows = openWindows();
    for (int round = 0; round < 30; ++round)
        build();
    CHECK(form.toolbar.buttons().size() == 21);
    CHECK(openHandles() == handles);
    CHECK(openWindows() == windows);
    store::boardButtons = {};
}

TEST_CASE("forms that come and go leave neither handles nor windows") {
    const contract::World world;
    const auto comeAndGo = [] {
        toolbars::frmToolbarSCH form;
        form.loadVarBar();
        form.show();
        win32::servePending();
        form.unload();
        win32::servePending();
    };
    comeAndGo();
    const int handles = openHandles();
    const int windows = openWindows();
    for (int round = 0; round < 30; ++round)
        comeAndGo();
    CHECK(openHandles() == handles);
    CHECK(openWindows() == windows);
}

TEST_CASE("a toolbar whose host's program is ended leaves no window of its tips") {
    contract::World world;
    const platform::HWND host = world.openWindow("host", {100, 120, 900, 720});
    const int before = tipWindows();
    toolbars::frmToolbarBRD form;
    form.loadVarBar();
    form.show();
    platform::SetParent(form.hWnd(), host);
    REQUIRE(tipWindows() == before + 1);
    world.killOtherProgram();
    CHECK(contract::World::until([&] { return form.hWnd() == platform::HWND::none; }));
    CHECK(tipWindows() == before);
}

TEST_CASE("an icon chooser that comes and goes leaves neither icons nor graphics nor handles nor windows") {
    contract::World world;
    const std::string library = world.iconFile(contract::IconSource::dll).path;
    const std::string file = world.iconFile(contract::IconSource::ico).path;
    int most = 0;
    const auto comeAndGo = [&] {
        store::frmIconChooser form(platform::HWND::none, {library, 2});
        form.show();
        const auto painted = [&form] {
            RedrawWindow(reinterpret_cast<HWND>(form.hWnd()), nullptr, nullptr,
                         RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
            win32::servePending();
        };
        painted();
        form.txtFile.edited(file);
        form.btnOk.click();
        CHECK(form.grdIcons.count() == 1);
        painted();
        most = std::max(most, contract::openGraphics());
        form.unload();
        win32::servePending();
    };
    comeAndGo();
    const int icons = contract::openIconHandles();
    const int graphics = contract::openGraphics();
    const int handles = openHandles();
    const int windows = openWindows();
    for (int round = 0; round < 10; ++round)
        comeAndGo();
    CHECK(contract::openIconHandles() == icons);
    CHECK(contract::openGraphics() == graphics);
    CHECK(most > graphics); // or the counting counts nothing
    CHECK(openHandles() == handles);
    CHECK(openWindows() == windows);
}

TEST_SUITE_END();
