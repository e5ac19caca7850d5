// The toolbar on its form: rows by width, height by rows.
#include "contract/world.h"
#include "forms/form.h"
#include "forms/toolbar.h"
#include "forms/units.h"
#include "platform/user32.h"

#include <doctest/doctest.h>

#include <string_view>

namespace {

using contract::World;
using platform::RECT;

class BarForm : public forms::Form {
  public:
    BarForm() {
        borderStyle = forms::BorderStyle::sizableToolWindow;
        showInTaskbar = false;
        activates = false;
        setClientSize(1800, 300);
        bar.place(*this, {});
    }
    forms::Toolbar bar;
    int resizes = 0;
    int rowsAtResize = 0;
    void Form_Resize() override {
        ++resizes;
        rowsAtResize = bar.layout().rows;
    }

    /// A button for each 'b', a separator for each '|'.
    void fill(std::string_view pattern) {
        bar.clearButtons();
        for (const char sign : pattern)
            bar.addButton("", "", sign == '|' ? forms::ButtonStyle::separator : forms::ButtonStyle::standard,
                          0);
    }

    void setClientWidth(int pixels) {
        const float frame = width() - scaleWidth();
        setWidth(forms::toTwips(pixels) + frame);
    }
};

int rowsOf(const forms::Toolbar& bar) {
    CHECK(bar.height() == forms::toTwips(bar.layout().rows * 22));
    return bar.layout().rows;
}

} // namespace

TEST_SUITE_BEGIN("contract");

TEST_CASE("contract: a toolbar is as wide as its form's client area, and one row high at least") {
    World world;
    BarForm form;
    form.show();
    CHECK(form.bar.left() == 0);
    CHECK(form.bar.top() == 0);
    CHECK(form.bar.width() == 1800);
    CHECK(rowsOf(form.bar) == 1);
}

TEST_CASE("contract: a sixth button of 23 pixels does not fit into 120") {
    World world;
    BarForm form;
    form.show();
    const struct {
        std::size_t buttons;
        int rows;
    } cases[] = {{1, 1}, {5, 1}, {6, 2}, {10, 2}, {11, 3}, {15, 3}, {16, 4}, {100, 20}};
    for (const auto& [buttons, rows] : cases) {
        form.fill(std::string(buttons, 'b'));
        CHECK_MESSAGE(rowsOf(form.bar) == rows, buttons);
    }
}

TEST_CASE("contract: separators take 8 pixels, and none at the end of a row") {
    World world;
    BarForm form;
    form.show();
    const struct {
        const char* pattern;
        int rows;
    } cases[] = {
        {"bbbb|b", 2},                          // 92 + 8 + 23 is more than 120
        {"bbb|bb", 2},                          // 69 + 8 + 46 is
        {"bbb|b", 1},                           // 69 + 8 + 23 is not
        {"bbbb|bbbbb", 2},                      // the separator goes, the second row is full
        {"bbbb|bbbbbb", 3}, {"bbbbb|bbbbb", 2}, // full rows need none
        {"bbb|||b", 1},                         // 69 + 24 + 23 is 116
        {"bbb||||b", 2},                        // 69 + 32 + 23 is not
    };
    for (const auto& [pattern, rows] : cases) {
        form.fill(pattern);
        CHECK_MESSAGE(rowsOf(form.bar) == rows, pattern);
    }
}

TEST_CASE("contract: the buttons wrap anew when the form's width changes, before its resize event") {
    World world;
    BarForm form;
    form.show();
    form.fill(std::string(18, 'b'));
    const struct {
        int width;
        int rows;
    } cases[] = {{137, 4}, {138, 3}, {139, 3}, {413, 2}, {414, 1}, {600, 1}, {120, 4}};
    int resizes = form.resizes;
    for (const auto& [width, rows] : cases) {
        form.setClientWidth(width);
        CHECK_MESSAGE(rowsOf(form.bar) == rows, width);
        CHECK(form.bar.width() == forms::toTwips(width));
        CHECK(form.rowsAtResize == rows);
        CHECK(form.resizes == ++resizes);
    }
}

TEST_CASE("contract: the buttons wrap anew when others resize the form's window") {
    World world;
    BarForm form;
    form.show();
    form.fill(std::string(12, 'b'));
    CHECK(rowsOf(form.bar) == 3);
    RECT rect;
    REQUIRE(platform::GetWindowRect(form.hWnd(), rect));
    platform::MoveWindow(form.hWnd(), rect.left, rect.top, rect.right - rect.left + 40,
                         rect.bottom - rect.top, true);
    CHECK(rowsOf(form.bar) == 2);
    CHECK(form.rowsAtResize == 2);
}

TEST_CASE("contract: a form made as high as its toolbar's rows shows just them") {
    World world;
    BarForm form;
    form.show();
    for (const std::size_t buttons : {3U, 8U, 30U, 5U}) {
        form.fill(std::string(buttons, 'b'));
        form.setHeight(form.bar.height() + form.height() - form.scaleHeight());
        CHECK(form.scaleHeight() == form.bar.height());
        RECT client;
        REQUIRE(platform::GetClientRect(form.hWnd(), client));
        CHECK(client.bottom == form.bar.layout().rows * 22);
        CHECK(client.right == 120);
    }
}

TEST_SUITE_END();
