// Forms with an owner.
#include "contract/world.h"
#include "forms/form.h"
#include "forms/timer.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

namespace {

struct Small : forms::Form {
    Small() {
        borderStyle = forms::BorderStyle::fixedDialog;
        setClientSize(1800, 900);
    }
};

} // namespace

TEST_SUITE_BEGIN("contract/windows/ownedForm");

TEST_CASE("a form stands in front of its owner, and without a living one it is nobody's or the program's") {
    const contract::World world;
    Small below;
    Small above;
    above.ownerWindow = below.window();
    CHECK(GetWindow(win32::native(above.window()), GW_OWNER) == win32::native(below.window()));
    above.unload();
    below.unload();
    CHECK(above.window() != platform::HWND::none);
}

TEST_CASE("a modal form whose owner goes waits no longer") {
    const contract::World world;
    Small below;
    below.show();
    Small above;
    above.ownerWindow = below.window();
    forms::Timer soon;
    soon.setInterval(50);
    soon.onTimer = [&] {
        soon.setEnabled(false);
        below.unload();
    };
    soon.setEnabled(true);
    above.showModal(); // comes back
    CHECK(above.hWnd() == platform::HWND::none);
}

TEST_SUITE_END();
