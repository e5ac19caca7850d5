// Sizes of a form: twips of the form, pixels of its window, and the resize event.
#include "contract/world.h"
#include "forms/form.h"
#include "forms/units.h"
#include "platform/screen.h"
#include "platform/user32.h"

#include <doctest/doctest.h>

#include <algorithm>

namespace {

using contract::World;
using platform::RECT;

class SizedForm : public forms::Form {
  public:
    explicit SizedForm(forms::BorderStyle border) {
        borderStyle = border;
        showInTaskbar = false;
        setClientSize(3000, 1500);
    }
    int resizes = 0;
    void Form_Resize() override { ++resizes; }
};

RECT outer(forms::Form& form) {
    RECT rect;
    REQUIRE(platform::GetWindowRect(form.hWnd(), rect));
    return rect;
}

RECT client(forms::Form& form) {
    RECT rect;
    REQUIRE(platform::GetClientRect(form.hWnd(), rect));
    return rect;
}

/// The form's figures are those of its window.
void checkInStep(forms::Form& form) {
    const RECT window = outer(form);
    const RECT inside = client(form);
    CHECK(form.width() == forms::Resolution().toTwips(window.right - window.left));
    CHECK(form.height() == forms::Resolution().toTwips(window.bottom - window.top));
    CHECK(form.scaleWidth() == forms::Resolution().toTwips(inside.right));
    CHECK(form.scaleHeight() == forms::Resolution().toTwips(inside.bottom));
}

constexpr forms::BorderStyle borders[] = {forms::BorderStyle::none, forms::BorderStyle::fixedSingle,
                                          forms::BorderStyle::fixedDialog,
                                          forms::BorderStyle::sizableToolWindow};

} // namespace

TEST_SUITE_BEGIN("contract/formSize");

TEST_CASE("a form has the client size of its design, whatever its border") {
    for (const forms::BorderStyle border : borders) {
        World world;
        SizedForm form(border);
        form.show();
        CHECK(client(form) == RECT{0, 0, 200, 100});
        CHECK(form.scaleWidth() == 3000);
        CHECK(form.scaleHeight() == 1500);
        checkInStep(form);
        CHECK(form.resizes == 0);
    }
}

TEST_CASE("an assigned height is the window's at once and raises one resize event") {
    for (const forms::BorderStyle border : borders) {
        World world;
        SizedForm form(border);
        form.show();
        const float frame = form.height() - form.scaleHeight();
        form.setHeight(2250 + frame);
        CHECK(form.resizes == 1);
        CHECK(client(form) == RECT{0, 0, 200, 150});
        CHECK(form.scaleHeight() == 2250);
        checkInStep(form);
    }
}

TEST_CASE("assigning the size that a form has raises nothing") {
    World world;
    SizedForm form(forms::BorderStyle::sizableToolWindow);
    form.show();
    form.setHeight(form.height());
    form.setWidth(form.width());
    CHECK(form.resizes == 0);
    // Within half a pixel it is the same size.
    form.setHeight(form.height() + 7);
    CHECK(form.resizes == 0);
    checkInStep(form);
}

TEST_CASE("a form that others resize hears of it once") {
    World world;
    SizedForm form(forms::BorderStyle::sizableToolWindow);
    form.show();
    REQUIRE(platform::MoveWindow(form.hWnd(), 50, 60, 300, 200, true));
    CHECK(form.resizes == 1);
    CHECK(outer(form) == RECT{50, 60, 350, 260});
    checkInStep(form);
    CHECK(form.width() == 4500);
}

TEST_CASE("a form that is only moved, raised or shown hears of no resize") {
    World world;
    SizedForm form(forms::BorderStyle::sizableToolWindow);
    form.show();
    const RECT at = outer(form);
    REQUIRE(platform::MoveWindow(form.hWnd(), 50, 60, at.right - at.left, at.bottom - at.top, true));
    platform::SetWindowPos(form.hWnd(), 0, 0, 0, 0, 0, 3);
    form.hide();
    form.show();
    CHECK(form.resizes == 0);
    checkInStep(form);
}

TEST_CASE("a form stays where others have put it when its size is assigned") {
    World world;
    SizedForm form(forms::BorderStyle::sizableToolWindow);
    form.show();
    const RECT at = outer(form);
    REQUIRE(platform::MoveWindow(form.hWnd(), 150, 160, at.right - at.left, at.bottom - at.top, true));
    CHECK(form.left() == 150 * 15);
    CHECK(form.top() == 160 * 15);
    form.setHeight(form.height() + 150);
    CHECK(outer(form).left == 150);
    CHECK(outer(form).top == 160);
    checkInStep(form);
}

TEST_CASE("sizes assigned before the window is made are those of the window") {
    World world;
    SizedForm form(forms::BorderStyle::sizableToolWindow);
    form.setPosition({450, 600, 4500, 3000});
    form.show();
    CHECK(outer(form) == RECT{30, 40, 330, 240});
    checkInStep(form);
}

TEST_CASE("a centred form stands in the middle of the screen, as far as the work area has it") {
    World world;
    SizedForm form(forms::BorderStyle::fixedSingle);
    form.centreOnScreen = true;
    form.show();
    const RECT at = outer(form);
    const RECT area = platform::workArea();
    const auto begin = [](int length, int screen, int first, int last) {
        return std::clamp((screen - length) / 2, first, last - length);
    };
    CHECK(at.left == begin(at.right - at.left, platform::screenWidth(), area.left, area.right));
    CHECK(at.top == begin(at.bottom - at.top, platform::screenHeight(), area.top, area.bottom));
    checkInStep(form);
}

TEST_SUITE_END();
