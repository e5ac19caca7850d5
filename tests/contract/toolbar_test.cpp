// The toolbar on its form: rows by width, height by rows.
#include "contract/barForm.h"
#include "contract/world.h"
#include "platform/user32.h"

#include <doctest/doctest.h>

#include <string>

namespace {

using contract::World;
using platform::RECT;

/// Writes its resizes down.
class BarForm : public contract::BarForm {
  public:
    int resizes = 0;
    float heightAtResize = 0;
    void Form_Resize() override {
        ++resizes;
        heightAtResize = bar.height();
    }
};

/// Rows that end on buttons.
float rows(int count) {
    return forms::Resolution().toTwips(count * 22);
}

} // namespace

TEST_SUITE_BEGIN("contract/toolbar");

TEST_CASE("a toolbar is as wide as its form's client area, and one row high at least") {
    World world;
    BarForm form;
    form.show();
    CHECK(form.bar.left() == 0);
    CHECK(form.bar.top() == 0);
    CHECK(form.bar.width() == 1800);
    CHECK(form.bar.height() == rows(1));
}

TEST_CASE("a sixth button of 23 pixels does not fit into 120") {
    World world;
    BarForm form;
    form.show();
    const struct {
        std::size_t buttons;
        int rows;
    } cases[] = {{1, 1}, {5, 1}, {6, 2}, {10, 2}, {11, 3}, {15, 3}, {16, 4}, {100, 20}};
    for (const auto& [buttons, count] : cases) {
        form.fill(std::string(buttons, 'b'));
        CHECK_MESSAGE(form.bar.height() == rows(count), buttons);
    }
}

TEST_CASE("a row ends at its rightmost separator, which becomes a gap of 5 pixels") {
    World world;
    BarForm form;
    form.show();
    const struct {
        const char* pattern;
        int height; ///< pixels
    } cases[] = {
        {"bbb|b", 22},       // 69 + 8 + 23 pixels, of 120
        {"bbbb|b", 22},      // 92 + 8 + 23 is 123: only the edge of the last button hangs over
        {"|bbbb|b", 49},     // 8 more do not go: the separator in the middle is the end
        {"bbbb|bb", 49},     // nor does a button more
        {"bbbbb|b", 49},     // the separator is the end and hangs over itself
        {"bbbbb||b", 49},    // a second one stands beyond the edge
        {"bbbb|bbbbb", 49},  //
        {"bbbb|bbbbbb", 71}, // the second row has no separator
        {"bbb|||b", 22},     // 69 + 24 + 23 is 116
        {"bbb||||b", 49},    // 69 + 32 + 23 is 124
        {"bbbbbbbb||b", 71}, // behind a row that ends on a button, adjacent separators are torn apart
    };
    for (const auto& [pattern, height] : cases) {
        form.fill(pattern);
        CHECK_MESSAGE(form.bar.height() == forms::Resolution().toTwips(height), pattern);
    }
}

TEST_CASE("the buttons wrap anew when the form's width changes, before its resize event") {
    World world;
    BarForm form;
    form.show();
    form.fill(std::string(18, 'b'));
    const struct {
        int width;
        int count;
    } cases[] = {{134, 4}, {135, 3}, {139, 3}, {410, 2}, {411, 1}, {600, 1}, {120, 4}};
    int resizes = form.resizes;
    for (const auto& [width, count] : cases) {
        form.setClientWidth(width);
        CHECK_MESSAGE(form.bar.height() == rows(count), width);
        CHECK(form.bar.width() == forms::Resolution().toTwips(width));
        CHECK(form.heightAtResize == rows(count));
        CHECK(form.resizes == ++resizes);
    }
}

TEST_CASE("the buttons wrap anew when others resize the form's window") {
    World world;
    BarForm form;
    form.show();
    form.fill(std::string(12, 'b'));
    CHECK(form.bar.height() == rows(3));
    RECT rect;
    REQUIRE(platform::GetWindowRect(form.hWnd(), rect));
    platform::MoveWindow(form.hWnd(), rect.left, rect.top, rect.right - rect.left + 40,
                         rect.bottom - rect.top, true);
    CHECK(form.bar.height() == rows(2));
    CHECK(form.heightAtResize == rows(2));
}

TEST_CASE("a form made as high as its toolbar's rows shows just them") {
    World world;
    BarForm form;
    form.show();
    for (const std::size_t buttons : {3U, 8U, 30U, 5U}) {
        form.fill(std::string(buttons, 'b'));
        form.setHeight(form.bar.height() + form.height() - form.scaleHeight());
        CHECK(form.scaleHeight() == form.bar.height());
        RECT client;
        REQUIRE(platform::GetClientRect(form.hWnd(), client));
        CHECK(client.bottom == forms::Resolution().toPixels(form.bar.height()));
        CHECK(client.right == 120);
    }
}

TEST_SUITE_END();
