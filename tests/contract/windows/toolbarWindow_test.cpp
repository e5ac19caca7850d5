// The system's toolbar control against the layout that the toolbar's model has worked out.
#include "contract/world.h"
#include "forms/form.h"
#include "forms/toolbar.h"
#include "forms/units.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <commctrl.h>

#include <string>

namespace {

using contract::World;

class BarForm : public forms::Form {
  public:
    BarForm() {
        borderStyle = forms::BorderStyle::sizableToolWindow;
        showInTaskbar = false;
        activates = false;
        setClientSize(1800, 300);
        bar.setImageList(&images);
        bar.place(*this, {});
    }
    forms::ImageList images;
    forms::Toolbar bar;

    /// A button for each 'b', a separator for each '|'; the form gets the height that they need.
    void fill(std::string_view pattern) {
        bar.clearButtons();
        for (const char sign : pattern)
            bar.addButton("", "", sign == '|' ? forms::ButtonStyle::separator : forms::ButtonStyle::standard,
                          images.count() > 0 && sign != '|' ? 1 : 0);
        followRows();
    }

    void setClientWidth(int pixels) {
        setWidth(forms::toTwips(pixels) + width() - scaleWidth());
        followRows();
    }

    HWND toolbar() { return reinterpret_cast<HWND>(bar.hWnd()); }

  private:
    void followRows() { setHeight(bar.height() + height() - scaleHeight()); }
};

LRESULT ask(HWND toolbar, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageA(toolbar, message, wParam, lParam);
}

/// The control's buttons stand where the model says. A control that rebuilds itself later gets the time for
/// it.
void checkAgree(BarForm& form) {
    const HWND toolbar = form.toolbar();
    const forms::ToolbarLayout& layout = form.bar.layout();
    REQUIRE(World::until(
        [&] { return ask(toolbar, TB_BUTTONCOUNT) == static_cast<LRESULT>(form.bar.buttons().size()); }));
    CHECK(World::until([&] { return ask(toolbar, TB_GETROWS) == layout.rows; }));
    for (std::size_t index = 0; index < layout.cells.size(); ++index) {
        const forms::ButtonCell& cell = layout.cells[index];
        RECT place{};
        const LRESULT shown = ask(toolbar, TB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&place));
        INFO("button ", index);
        CHECK((shown == 0) == cell.hidden);
        if (cell.hidden)
            continue;
        CHECK(place.left == cell.x);
        CHECK(place.top == cell.row * forms::toolbarButtonHeight);
        CHECK(place.right - place.left ==
              (cell.separator ? forms::toolbarSeparatorWidth : forms::toolbarButtonWidth));
        CHECK(place.bottom - place.top == forms::toolbarButtonHeight);
    }
}

constexpr const char* patterns[] = {
    "",
    "b",
    "bbbbb",
    "bbbbbb",
    "bbbbbbbbbbb",
    "bbbb|b",
    "bbb|b",
    "bbb|bb",
    "bbbb|bbb",
    "bbbb||bbbb",
    "|b",
    "b|",
    "bbb||||b",
    "bbbbbbbbbbbbbbbbbbbbbbbbbbbbbb",
    "b|b|b|b|b|b|b|b",
    "||||||||||||||||||b",
    "bbbbb|bbbbb|bbbbb|",
};

} // namespace

TEST_SUITE_BEGIN("contract");

TEST_CASE("contract, windows: the system's toolbar has the rows and places of the model") {
    World world;
    BarForm form;
    form.show();
    for (const char* pattern : patterns) {
        INFO("pattern ", std::string(pattern));
        form.fill(pattern);
        checkAgree(form);
    }
}

TEST_CASE("contract, windows: the system's toolbar has them with pictures too") {
    World world;
    BarForm form;
    form.images.add(0, "one", forms::Picture(16, 16, std::vector<std::uint32_t>(256, 0xFF0000FFU)));
    form.bar.setImageList(&form.images);
    form.show();
    for (const char* pattern : patterns) {
        INFO("pattern ", std::string(pattern));
        form.fill(pattern);
        checkAgree(form);
    }
}

TEST_CASE("contract, windows: the system's toolbar follows the form's width") {
    World world;
    BarForm form;
    form.show();
    form.fill("bbb|bbbb|bbbbbbbb|bb");
    for (const int width : {120, 137, 138, 139, 145, 146, 147, 200, 263, 421, 440, 600, 160, 120}) {
        INFO("width ", width);
        form.setClientWidth(width);
        checkAgree(form);
    }
}

TEST_CASE("contract, windows: a button of the system's toolbar that is clicked raises its click") {
    World world;
    BarForm form;
    form.show();
    form.fill("bbb|bbbb");
    checkAgree(form);
    std::string clicked;
    form.bar.findButton("");
    form.bar.onButtonClick = [&](forms::ToolbarButton& button) { clicked += button.tag; };
    form.bar.clearButtons();
    form.bar.addButton("first", "", forms::ButtonStyle::standard, 0).tag = "1";
    form.bar.addButton("gap", "", forms::ButtonStyle::separator, 0);
    form.bar.addButton("second", "", forms::ButtonStyle::standard, 0).tag = "2";
    checkAgree(form);
    RECT place{};
    ask(form.toolbar(), TB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&place));
    const LPARAM middle = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    ask(form.toolbar(), WM_LBUTTONDOWN, MK_LBUTTON, middle);
    ask(form.toolbar(), WM_LBUTTONUP, 0, middle);
    CHECK(World::until([&] { return clicked == "2"; }));
}

TEST_SUITE_END();
