// The window of a grid of icons: in step with the grid, and painted.
#include "contract/world.h"
#include "forms/form.h"
#include "forms/iconGrid.h"
#include "win32/common/messages.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr std::uint32_t red = 0xFFFF0000U;
constexpr std::uint32_t halfRed = 0x80FF0000U;
constexpr std::uint32_t clear = 0x00FF0000U;

forms::Picture plain(std::uint32_t pixel) {
    constexpr int side = forms::IconGrid::iconSize;
    return {side, side, std::vector<std::uint32_t>(std::size_t{side} * side, pixel)};
}

/// A form with a grid on it; what is asked for and what happens is written down.
struct GridForm : forms::Form {
    GridForm() {
        setClientSize(6000, 3000);
        grid.place(*this, {0, 0, 6000, 3000});
        grid.onClick = [this] { told.push_back("click " + std::to_string(grid.selectedIndex())); };
        grid.onDblClick = [this] { told.push_back("twice " + std::to_string(grid.selectedIndex())); };
    }
    void fill(int count) {
        grid.show(count, [this](int index, int /*side*/) {
            asked.push_back(index);
            return plain(index == 0 ? red : index == 1 ? halfRed : clear);
        });
    }
    HWND view() { return win32::native(grid.hWnd()); }
    LRESULT ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(view(), message, wParam, lParam);
    }
    LRESULT selected() { return ask(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED); }
    void paint() {
        RedrawWindow(view(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        win32::servePending();
    }
    /// What is painted in the middle of an icon.
    COLORREF middleOf(int index) {
        RECT icon{LVIR_ICON, 0, 0, 0};
        ask(LVM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&icon));
        const HDC dc = GetDC(view());
        const COLORREF colour = GetPixel(dc, (icon.left + icon.right) / 2, icon.top + 16);
        ReleaseDC(view(), dc);
        return colour;
    }

    forms::IconGrid grid;
    std::vector<std::string> told;
    std::vector<int> asked;
};

using Told = std::vector<std::string>;

} // namespace

TEST_SUITE_BEGIN("contract/windows/iconGrid");

TEST_CASE("the icons of a grid are numbered in its window, and new ones take the place of the old") {
    const contract::World world;
    GridForm form;
    form.fill(3);
    form.show();
    CHECK(form.ask(LVM_GETITEMCOUNT) == 3);
    form.fill(1000);
    CHECK(form.ask(LVM_GETITEMCOUNT) == 1000);
    char text[10] = {};
    LVITEMA item{};
    item.pszText = text;
    item.cchTextMax = sizeof text;
    form.ask(LVM_GETITEMTEXTA, 999, reinterpret_cast<LPARAM>(&item));
    CHECK(std::string(text) == "999");
    form.grid.clear();
    CHECK(form.ask(LVM_GETITEMCOUNT) == 0);
}

TEST_CASE("only the icons in sight are asked for, each once") {
    const contract::World world;
    GridForm form;
    form.fill(1000);
    form.grid.setSelectedIndex(900);
    form.show();
    win32::servePending();
    form.paint();
    form.paint();
    REQUIRE_FALSE(form.asked.empty());
    CHECK(form.asked.size() < 100);
    std::vector<int> once = form.asked;
    std::sort(once.begin(), once.end());
    CHECK(std::adjacent_find(once.begin(), once.end()) == once.end());
    CHECK(std::find(once.begin(), once.end(), 900) != once.end());
}

TEST_CASE("the selected icon is in sight, also where the scroll bar takes a column's room") {
    const contract::World world;
    for (const float width : {3000.0F, 3300.0F, 3600.0F, 3900.0F}) { // a column is 840 wide
        GridForm form;
        form.grid.setWidth(width);
        form.fill(1000);
        form.grid.setSelectedIndex(900);
        form.show();
        win32::servePending();
        form.paint();
        RECT icon{LVIR_BOUNDS, 0, 0, 0};
        form.ask(LVM_GETITEMRECT, 900, reinterpret_cast<LPARAM>(&icon));
        RECT client{};
        GetClientRect(form.view(), &client);
        CAPTURE(width);
        CHECK(icon.top >= 0);
        CHECK(icon.bottom <= client.bottom);
    }
}

TEST_CASE("icons are painted with their opacity, and those without any not at all") {
    const contract::World world;
    GridForm form;
    form.fill(3);
    form.show();
    form.paint();
    const COLORREF paper = GetSysColor(COLOR_WINDOW);
    CHECK(form.middleOf(0) == RGB(255, 0, 0));
    CHECK(form.middleOf(2) == paper);
    const COLORREF half = form.middleOf(1);
    CHECK(GetRValue(half) > 250);
    CHECK(std::abs(GetGValue(half) - GetGValue(paper) / 2) < 4);
}

TEST_CASE("a selection by the program is shown and raises its event once, one by the user reaches the grid") {
    const contract::World world;
    GridForm form;
    form.fill(5);
    form.show();
    form.grid.setSelectedIndex(3);
    win32::servePending();
    CHECK(form.selected() == 3);
    CHECK(form.told == Told{"click 3"});
    // As a screen reader does it.
    LVITEMA item{};
    item.stateMask = item.state = LVIS_SELECTED;
    form.ask(LVM_SETITEMSTATE, 1, reinterpret_cast<LPARAM>(&item));
    win32::servePending();
    CHECK(form.grid.selectedIndex() == 1);
    CHECK(form.told == Told{"click 3", "click 1"});
    form.grid.setSelectedIndex(-1);
    CHECK(form.selected() == -1);
    CHECK(form.told.size() == 2);
}

TEST_CASE("a selection that the user takes away comes back") {
    const contract::World world;
    GridForm form;
    form.fill(5);
    form.grid.setSelectedIndex(2);
    form.show();
    LVITEMA item{};
    item.stateMask = LVIS_SELECTED;
    form.ask(LVM_SETITEMSTATE, 2, reinterpret_cast<LPARAM>(&item));
    win32::servePending();
    CHECK(form.selected() == 2);
    CHECK(form.grid.selectedIndex() == 2);
    CHECK(form.told == Told{"click 2"});
}

TEST_CASE("a double click may take the form away") {
    const contract::World world;
    GridForm form;
    form.fill(5);
    form.show();
    form.paint();
    form.grid.onDblClick = [&form] { form.unload(); };
    RECT icon{LVIR_ICON, 0, 0, 0};
    form.ask(LVM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&icon));
    const LPARAM place = MAKELPARAM((icon.left + icon.right) / 2, icon.top + 16);
    const HWND view = form.view();
    PostMessageA(view, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageA(view, WM_LBUTTONUP, 0, place);
    win32::servePending();
    CHECK(form.grid.selectedIndex() == 1);
    SendMessageA(view, WM_LBUTTONDBLCLK, MK_LBUTTON, place);
    CHECK_FALSE(form.loaded());
    CHECK(IsWindow(view) == FALSE);
}

TEST_SUITE_END();
