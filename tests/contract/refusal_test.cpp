// A form or frame of the program that is to go into another window and is refused.
#include "contract/toolForm.h"
#include "contract/world.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/units.h"
#include "platform/refusals.h"
#include "platform/user32.h"

#include <doctest/doctest.h>

namespace {

using contract::World;
using platform::HWND;
using platform::RECT;

constexpr RECT hostRect = {100, 120, 900, 720};
constexpr std::uint32_t setRedraw = 11;
constexpr int show = 5;

class FrameForm : public contract::ToolForm {
  public:
    FrameForm() {
        setCaption("tools");
        frame.place(*this, {0, 0, 1500, 270});
    }
    forms::Frame frame;
};

HWND deadWindow(World& world) {
    const HWND window = world.openWindow("host", hostRect);
    world.closeWindow(window);
    REQUIRE(World::until([&] { return !platform::IsWindow(window); }));
    return window;
}

/// All that a toolbar that is built for a host is told.
void buildIn(FrameForm& form, HWND host) {
    const HWND window = form.hWnd();
    platform::MoveWindow(window, 300, 200, 128, 60, true);
    platform::SendMessageA(window, setRedraw, 0, 0);
    platform::SetParent(window, HWND::none);
    form.setHeight(form.height() + forms::Resolution().toTwips(22));
    platform::SetParent(window, host);
    platform::SendMessageA(window, setRedraw, 1, 0);
    platform::SetWindowPos(window, 0, 0, 0, 0, 0, 3);
    platform::ShowWindow(window, show);
    form.hide();
    form.show();
}

} // namespace

TEST_SUITE_BEGIN("contract/refusal");

TEST_CASE("a form that is refused stays top-level and is not seen, whatever it is told") {
    World world;
    FrameForm form;
    form.show();
    REQUIRE(World::isSeen(form.hWnd()));
    HWND host = HWND::none;
    SUBCASE("by a host that has just died") {
        host = deadWindow(world);
    }
    SUBCASE("by a window that stands in itself") {
        host = form.frame.hWnd();
    }
    CHECK(platform::SetParent(form.hWnd(), host) == HWND::none);
    CHECK_FALSE(World::isSeen(form.hWnd()));
    buildIn(form, host);
    CHECK_FALSE(World::isSeen(form.hWnd()));
    CHECK(form.visible());
}

TEST_CASE("a form that has been refused is seen in a host that takes it") {
    World world;
    FrameForm form;
    form.show();
    platform::SetParent(form.hWnd(), deadWindow(world));
    const HWND host = world.openWindow("host", hostRect);
    bool seen = true;
    SUBCASE("as it was before") {}
    SUBCASE("after all that it was told") {
        buildIn(form, deadWindow(world));
    }
    SUBCASE("unless it was hidden meanwhile") {
        form.hide();
        seen = false;
    }
    CHECK(platform::SetParent(form.hWnd(), host) != form.hWnd());
    CHECK(World::until([&] { return World::isSeen(form.hWnd()) == seen; }));
    RECT size;
    REQUIRE(platform::GetWindowRect(form.hWnd(), size));
    REQUIRE(platform::MoveWindow(form.hWnd(), 10, 10, size.right - size.left, size.bottom - size.top, true));
    RECT moved;
    REQUIRE(platform::GetWindowRect(form.hWnd(), moved));
    CHECK(moved.left > hostRect.left);
    CHECK(moved.left < hostRect.left + 40);
}

TEST_CASE("that a window was refused is known for a while") {
    World world;
    FrameForm form;
    form.show();
    const HWND dead = deadWindow(world);
    CHECK(World::until([] { return !platform::refusedLately(); }));
    platform::SetParent(form.hWnd(), dead);
    CHECK(platform::refusedLately());
    CHECK(World::until([] { return !platform::refusedLately(); }));
}

TEST_CASE("a frame that is refused stays in its form and is not seen") {
    World world;
    FrameForm form;
    form.show();
    const HWND host = deadWindow(world);
    CHECK(platform::SetParent(form.frame.hWnd(), host) == HWND::none);
    form.frame.setLeft(300);
    form.frame.setVisible(false);
    form.frame.setVisible(true);
    CHECK_FALSE(World::isSeen(form.frame.hWnd()));
    const HWND living = world.openWindow("host", hostRect);
    CHECK(platform::SetParent(form.frame.hWnd(), living) == form.hWnd());
    CHECK(World::until([&] { return World::isSeen(form.frame.hWnd()); }));
}

TEST_SUITE_END();
