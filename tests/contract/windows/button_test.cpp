// Command buttons as windows.
#include "contract/world.h"
#include "forms/button.h"
#include "forms/form.h"
#include "win32/platform/native.h"

#include <doctest/doctest.h>

#include <windows.h>

TEST_CASE("contract: a button's caption wraps where two lines have room, and stays whole in one where they "
          "have not") {
    const contract::World world;
    forms::Form form;
    forms::CommandButton low;
    forms::CommandButton high;
    low.place(form, {0, 0, 1335, 435});
    high.place(form, {0, 600, 1335, 450});
    form.show();
    const auto wraps = [](forms::CommandButton& button) {
        return (GetWindowLongA(win32::native(button.hWnd()), GWL_STYLE) & BS_MULTILINE) != 0;
    };
    CHECK_FALSE(wraps(low));
    CHECK(wraps(high));
}
