// Toolbar: the layout of its rows, its buttons and their clicks.
#include "forms/toolbar.h"

#include "desktop/desktop.h"
#include "forms/form.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <string>
#include <vector>

using forms::ButtonStyle;
using runtime::ErrorNumber;

namespace {

/// Buttons by a picture of them: `b` a button, `|` a separator.
std::deque<forms::ToolbarButton> buttonsOf(const std::string& drawing) {
    std::deque<forms::ToolbarButton> buttons;
    for (const char sign : drawing)
        buttons.emplace_back().style = sign == '|' ? ButtonStyle::separator : ButtonStyle::standard;
    return buttons;
}

/// The rows as they are drawn, `.` for a hidden separator. Each cell stands where the ones before it in its
/// row end.
std::string drawn(const std::string& drawing, int width) {
    const forms::ToolbarLayout layout = forms::layoutToolbar(buttonsOf(drawing), width);
    REQUIRE(layout.cells.size() == drawing.size());
    std::string result;
    int row = 0;
    int x = 0;
    for (std::size_t i = 0; i < drawing.size(); ++i) {
        const forms::ButtonCell& cell = layout.cells[i];
        if (cell.row != row) {
            CHECK(cell.row == row + 1);
            row = cell.row;
            x = 0;
            result += '/';
        }
        result += cell.hidden ? '.' : drawing[i];
        if (cell.hidden)
            continue;
        CHECK(cell.x == x);
        x += drawing[i] == '|' ? forms::toolbarSeparatorWidth : forms::toolbarButtonWidth;
        if (drawing[i] == 'b' && cell.x > 0)
            CHECK(x <= width);
    }
    CHECK(layout.rows == row + 1);
    return result;
}

ErrorNumber errorOf(const std::function<void()>& code) {
    try {
        code();
    } catch (const runtime::RuntimeError& error) {
        return error.number;
    }
    return ErrorNumber{0};
}

const forms::Picture dot(16, 16, std::vector<std::uint32_t>(256, 0xFF102030));

} // namespace

TEST_CASE("five buttons of 23 pixels fit in 115 and in 120 pixels, not in 114") {
    CHECK(drawn("bbbbb", 120) == "bbbbb");
    CHECK(drawn("bbbbb", 115) == "bbbbb");
    CHECK(drawn("bbbbb", 114) == "bbbb/b");
    CHECK(drawn("bbbbbb", 120) == "bbbbb/b");
    CHECK(drawn("bbbbbbbbbbb", 120) == "bbbbb/bbbbb/b");
}

TEST_CASE("a separator takes eight pixels where it stands between buttons") {
    CHECK(drawn("b|b", 54) == "b|b");
    CHECK(drawn("b|b", 53) == "b./b");
    CHECK(drawn("b||b", 62) == "b||b");
}

TEST_CASE("a separator that falls on the end of a row is hidden and takes no room in the next") {
    CHECK(drawn("bbbbb|b", 120) == "bbbbb./b");
    CHECK(drawn("bbbbb||bbbbb", 120) == "bbbbb../bbbbb");
    CHECK(drawn("bbbb||bbbbb", 115) == "bbbb../bbbbb");
    CHECK(drawn("bb|bb|bbbb", 120) == "bb|bb./bbbb");
    CHECK(drawn("bb|", 46) == "bb.");
    CHECK(drawn("bb|", 54) == "bb|");
}

TEST_CASE("a row holds at least one button, however narrow the toolbar is") {
    CHECK(drawn("bbb", 22) == "b/b/b");
    CHECK(drawn("b|b", 0) == "b./b");
    CHECK(drawn("bb", -5) == "b/b");
    CHECK(drawn("|b", 25) == ".b");
    CHECK(drawn("|b", 31) == "|b");
}

TEST_CASE("a row of nothing but separators is none") {
    CHECK(drawn(std::string(15, '|') + "b", 120) == std::string(15, '.') + "b");
    CHECK(drawn(std::string(20, '|') + "b", 120) == std::string(20, '.') + "b");
    CHECK(drawn("|||", 120) == "|||");
}

TEST_CASE("no buttons are one row") {
    CHECK(drawn("", 120).empty());
    CHECK(forms::Toolbar().height() == 330);
}

TEST_CASE("a toolbar that gets button after button has the layout of all of them at once") {
    forms::Toolbar toolbar;
    toolbar.setWidth(100 * 15);
    std::string drawing;
    for (unsigned i = 0, seed = 7; i < 400; ++i, seed = seed * 1103515245U + 12345U) {
        const bool separator = (seed >> 16) % 3 == 0;
        drawing += separator ? '|' : 'b';
        toolbar.addButton("", "", separator ? ButtonStyle::separator : ButtonStyle::standard, 0);
    }
    const forms::ToolbarLayout whole = forms::layoutToolbar(buttonsOf(drawing), 100);
    REQUIRE(toolbar.layout().cells.size() == 400);
    CHECK(toolbar.layout().rows == whole.rows);
    CHECK(toolbar.height() == static_cast<float>(whole.rows) * 330);
    for (std::size_t i = 0; i < 400; ++i) {
        const forms::ButtonCell& one = toolbar.layout().cells[i];
        CHECK(std::tuple(one.x, one.row, one.hidden) ==
              std::tuple(whole.cells[i].x, whole.cells[i].row, whole.cells[i].hidden));
    }
    drawn(drawing, 100);
}

TEST_CASE("the height follows the buttons and the width, and nothing else") {
    forms::Toolbar toolbar;
    toolbar.setPosition({0, 0, 1800, 5000});
    CHECK(toolbar.height() == 330);
    for (int i = 0; i < 6; ++i)
        toolbar.addButton("", "", ButtonStyle::standard, 0);
    CHECK(toolbar.height() == 660);
    toolbar.setHeight(1);
    CHECK(toolbar.height() == 660);
    CHECK(toolbar.position().height == 660);
    toolbar.setWidth(138 * 15);
    CHECK(toolbar.height() == 330);
    toolbar.setWidth(23 * 15);
    CHECK(toolbar.height() == 6 * 330);
    toolbar.clearButtons();
    CHECK(toolbar.height() == 330);
}

TEST_CASE("a toolbar on a form spans its client width and wraps when the form gets narrower") {
    const desktop::Session session;
    forms::Form form;
    forms::Toolbar toolbar;
    form.borderStyle = forms::BorderStyle::sizableToolWindow;
    form.setClientSize(1800, 300);
    toolbar.place(form, {0, 0, 500, 330});
    form.load();
    for (int i = 0; i < 5; ++i)
        toolbar.addButton("", "", ButtonStyle::standard, 0);
    CHECK(toolbar.width() == 1800);
    CHECK(toolbar.height() == 330);
    form.setWidth(form.width() - 6 * 15);
    CHECK(toolbar.height() == 660);
    form.setWidth(form.width() + 15);
    CHECK(toolbar.height() == 330);
}

TEST_CASE("an image number needs an image of the list; the failed button is not there") {
    forms::ImageList images;
    images.add(1, "", dot);
    images.add(2, "Config", dot);
    forms::Toolbar toolbar;
    CHECK(errorOf([&] { toolbar.addButton("a", "", ButtonStyle::standard, 1); }) ==
          ErrorNumber::subscriptOutOfRange);
    CHECK(errorOf([&] { toolbar.addButton("a", "", ButtonStyle::standard, "Config"); }) ==
          ErrorNumber::subscriptOutOfRange);
    toolbar.setImageList(&images);
    CHECK(errorOf([&] { toolbar.addButton("a", "", ButtonStyle::standard, 3); }) ==
          ErrorNumber::subscriptOutOfRange);
    CHECK(errorOf([&] { toolbar.addButton("a", "", ButtonStyle::standard, -1); }) ==
          ErrorNumber::subscriptOutOfRange);
    CHECK(errorOf([&] { toolbar.addButton("a", "", ButtonStyle::standard, "Over"); }) ==
          ErrorNumber::subscriptOutOfRange);
    CHECK(toolbar.buttons().empty());
    CHECK(toolbar.findButton("a") == nullptr);
    CHECK(toolbar.addButton("a", "cap", ButtonStyle::standard, "Config").image == 2);
    CHECK(toolbar.buttons().front().caption == "cap");
    CHECK(toolbar.addButton("b", "", ButtonStyle::standard, 0).image == 0);
}

TEST_CASE("a key can be there once, but any number of buttons may be without one") {
    forms::Toolbar toolbar;
    toolbar.addButton("a11", "", ButtonStyle::standard, 0);
    toolbar.addButton("", "", ButtonStyle::separator, 0);
    toolbar.addButton("", "", ButtonStyle::separator, 0);
    toolbar.addButton("A11", "", ButtonStyle::standard, 0);
    CHECK(errorOf([&] { toolbar.addButton("a11", "", ButtonStyle::standard, 0); }) ==
          ErrorNumber::keyNotUnique);
    CHECK(toolbar.buttons().size() == 4);
    CHECK(toolbar.layout().cells.size() == 4);
    CHECK(toolbar.findButton("a11") == &toolbar.buttons().front());
    CHECK(toolbar.findButton("") == nullptr);
    toolbar.clearButtons();
    CHECK(toolbar.findButton("a11") == nullptr);
    toolbar.addButton("a11", "", ButtonStyle::standard, 0);
}

TEST_CASE("a button that was added keeps its place while others are") {
    forms::Toolbar toolbar;
    forms::ToolbarButton& first = toolbar.addButton("first", "", ButtonStyle::standard, 0);
    for (int i = 0; i < 300; ++i)
        toolbar.addButton("k" + std::to_string(i), "", ButtonStyle::standard, 0);
    first.tag = "still there";
    CHECK(toolbar.findButton("first")->tag == "still there");
}

TEST_CASE("a click is given the button, and what is no button raises nothing") {
    forms::Toolbar toolbar;
    std::vector<std::string> clicked;
    toolbar.onButtonClick = [&](forms::ToolbarButton& button) { clicked.push_back(button.key + button.tag); };
    toolbar.addButton("one", "", ButtonStyle::standard, 0).tag = "=1";
    toolbar.addButton("", "", ButtonStyle::separator, 0);
    toolbar.clickButton(1);
    toolbar.clickButton(2);
    toolbar.clickButton(0);
    toolbar.setEnabled(false);
    toolbar.clickButton(0);
    CHECK(clicked == std::vector<std::string>{"one=1"});
}

TEST_CASE("a click may rebuild the toolbar and go on with its button") {
    forms::Toolbar toolbar;
    std::string tag;
    toolbar.onButtonClick = [&](forms::ToolbarButton& button) {
        toolbar.clearButtons();
        toolbar.addButton("new", "", ButtonStyle::standard, 0);
        toolbar.onButtonClick = nullptr;
        tag = button.tag;
    };
    toolbar.addButton("Config", "", ButtonStyle::standard, 0).tag =
        "a tag too long to be kept in the text itself";
    toolbar.clickButton(0);
    CHECK(tag == "a tag too long to be kept in the text itself");
    CHECK(toolbar.buttons().front().key == "new");
}
