// A form of the program in a window of another program: rectangles, the way in and out, and the host's death.
#include "contract/toolForm.h"
#include "contract/world.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/units.h"
#include "platform/keySender.h"
#include "platform/messages.h"
#include "platform/programs.h"
#include "platform/user32.h"
#include "runtime/keyText.h"

#include <doctest/doctest.h>

#include <chrono>

namespace {

using contract::World;
using platform::HWND;
using platform::RECT;

constexpr RECT hostRect = {100, 120, 900, 720};

class CountingForm : public contract::ToolForm {
  public:
    CountingForm() { setCaption("tools"); }
    int resizes = 0;
    void Form_Resize() override { ++resizes; }
};

RECT rectOf(HWND window) {
    RECT rect;
    REQUIRE(platform::GetWindowRect(window, rect));
    return rect;
}

int widthOf(const RECT& rect) {
    return rect.right - rect.left;
}

int heightOf(const RECT& rect) {
    return rect.bottom - rect.top;
}

RECT moved(const RECT& rect, int x, int y) {
    return {rect.left + x, rect.top + y, rect.right + x, rect.bottom + y};
}

/// Shows the form and makes it a child of the host at (0, 0).
HWND host(forms::Form& form, HWND window) {
    form.show();
    const HWND hosted = form.hWnd();
    platform::SetParent(hosted, window);
    const RECT size = rectOf(hosted);
    REQUIRE(platform::MoveWindow(hosted, 0, 0, widthOf(size), heightOf(size), true));
    return hosted;
}

} // namespace

TEST_SUITE_BEGIN("contract/hosting");

TEST_CASE("a child's coordinates are those of its parent's client area") {
    World world;
    const HWND window = world.openWindow("host", hostRect);
    CountingForm form;
    const HWND hosted = host(form, window);
    const RECT corner = rectOf(hosted);

    // The client area of the host begins behind its frame and title.
    RECT client;
    REQUIRE(platform::GetClientRect(window, client));
    const int side = (widthOf(hostRect) - client.right) / 2;
    CHECK(corner.left == hostRect.left + side);
    CHECK(corner.top == hostRect.bottom - side - client.bottom);

    REQUIRE(platform::MoveWindow(hosted, 30, 40, widthOf(corner), heightOf(corner), true));
    CHECK(rectOf(hosted) == moved(corner, 30, 40));
    REQUIRE(platform::MoveWindow(hosted, -5, 2000, widthOf(corner), heightOf(corner), true));
    CHECK(rectOf(hosted) == moved(corner, -5, 2000));
}

TEST_CASE("a child goes along with its host") {
    World world;
    const HWND window = world.openWindow("host", hostRect);
    CountingForm form;
    const HWND hosted = host(form, window);
    const RECT before = rectOf(hosted);
    platform::MoveWindow(window, 150, 180, widthOf(hostRect), heightOf(hostRect), true);
    CHECK(World::until([&] { return rectOf(hosted) == moved(before, 50, 60); }));
}

TEST_CASE("taking a form into a host and out again keeps its position in numbers") {
    World world;
    const HWND window = world.openWindow("host", hostRect);
    CountingForm form;
    const HWND hosted = host(form, window);
    const RECT corner = rectOf(hosted);
    REQUIRE(platform::MoveWindow(hosted, 70, 80, widthOf(corner), heightOf(corner), true));

    CHECK(platform::SetParent(hosted, HWND::none) == window);
    const RECT outside = {70, 80, 70 + widthOf(corner), 80 + heightOf(corner)};
    CHECK(rectOf(hosted) == outside);

    platform::SetParent(hosted, window);
    CHECK(rectOf(hosted) == moved(corner, 70, 80));
    CHECK(form.hWnd() == hosted);
}

TEST_CASE("a height that is assigned outside the host lasts inside") {
    World world;
    const HWND window = world.openWindow("host", hostRect);
    CountingForm form;
    const HWND hosted = host(form, window);
    const RECT corner = rectOf(hosted);
    REQUIRE(platform::MoveWindow(hosted, 300, 10, widthOf(corner), heightOf(corner), true));
    form.resizes = 0;

    platform::SetParent(hosted, HWND::none);
    form.setHeight(form.height() + forms::Resolution().toTwips(44));
    platform::SetParent(hosted, window);

    RECT expected = moved(corner, 300, 10);
    expected.bottom += 44;
    CHECK(rectOf(hosted) == expected);
    CHECK(form.resizes == 1);
    CHECK(form.scaleHeight() == 300 + 44 * 15);
}

TEST_CASE("a hosted form is not among the top-level windows and is found there again outside") {
    World world;
    const HWND window = world.openWindow("host", hostRect);
    CountingForm form;
    const HWND hosted = host(form, window);
    struct Search {
        HWND wanted;
        bool found;
    };
    const auto isTopLevel = [hosted] {
        Search search{hosted, false};
        platform::EnumWindows(
            [](HWND seen, std::intptr_t extra) {
                Search& at = *reinterpret_cast<Search*>(extra);
                at.found = at.found || seen == at.wanted;
                return 1;
            },
            reinterpret_cast<std::intptr_t>(&search));
        return search.found;
    };
    CHECK_FALSE(isTopLevel());
    platform::SetParent(hosted, HWND::none);
    CHECK(isTopLevel());
}

TEST_CASE("a frame can be hosted without the form that it stands on") {
    World world;
    const HWND window = world.openWindow("host", hostRect);
    CountingForm form;
    forms::Frame frame;
    frame.place(form, {0, 0, 1500, 270});
    form.show();
    const RECT formRect = rectOf(form.hWnd());
    const HWND hosted = frame.hWnd();
    CHECK(platform::SetParent(hosted, window) == form.hWnd());
    REQUIRE(platform::MoveWindow(hosted, 0, 0, 100, 18, true));
    const RECT corner = rectOf(hosted);
    CHECK(widthOf(corner) == 100);
    CHECK(heightOf(corner) == 18);
    REQUIRE(platform::MoveWindow(hosted, 200, 0, 100, 18, true));
    CHECK(rectOf(hosted) == moved(corner, 200, 0));
    CHECK(rectOf(form.hWnd()) == formRect);

    world.closeWindow(window);
    CHECK(World::until([&] { return frame.hWnd() == HWND::none; }));
    // Its form is an idle window without it.
    CHECK(World::until([&] { return form.hWnd() == HWND::none; }));
    CHECK(form.loaded());
    CHECK(form.window() == HWND::none);
}

TEST_CASE("a frame whose host's program is ended takes its form's idle window along, too") {
    World world;
    const HWND window = world.openWindow("host", hostRect);
    CountingForm form;
    forms::Frame frame;
    frame.place(form, {0, 0, 1500, 270});
    form.show();
    const HWND idle = form.hWnd();
    platform::SetParent(frame.hWnd(), window);
    world.killOtherProgram();
    CHECK(World::until([&] { return frame.hWnd() == HWND::none && form.hWnd() == HWND::none; }));
    CHECK_FALSE(platform::IsWindow(idle));
}

TEST_CASE("a form outlives the closing of its host, without a window") {
    World world;
    const HWND window = world.openWindow("host", hostRect);
    const HWND other = world.openWindow("other host", hostRect);
    CountingForm form;
    CountingForm stays;
    const HWND hosted = host(form, window);
    host(stays, other);
    world.closeWindow(window);
    CHECK(World::until([&] { return form.hWnd() == HWND::none; }));
    CHECK(World::until([&] { return !platform::IsWindow(hosted) && !platform::IsWindow(window); }));
    CHECK(form.loaded());
    // The controls and sizes of such a form are only state; using them harms nothing.
    form.setHeight(3000);
    form.setCaption("gone");
    CHECK(form.height() == 3000);
    CHECK(platform::IsWindow(stays.hWnd()));
    CHECK_FALSE(platform::MoveWindow(hosted, 0, 0, 10, 10, true));
}

TEST_CASE("a form outlives the end of its host's process, without a window") {
    World world;
    const HWND window = world.openWindow("host", hostRect);
    CountingForm form;
    forms::Frame frame;
    frame.place(form, {0, 0, 1500, 270});
    const HWND hosted = host(form, window);
    world.killOtherProgram();
    CHECK(World::until([&] { return form.hWnd() == HWND::none && frame.hWnd() == HWND::none; }));
    CHECK(World::until([&] { return !platform::IsWindow(hosted) && !platform::IsWindow(window); }));
    CHECK(form.loaded());
    form.setHeight(3000);
    CHECK(form.height() == 3000);
    platform::SetParent(hosted, HWND::none);
    CHECK_FALSE(platform::SetWindowPos(window, 0, 0, 0, 0, 0, 3));
}

TEST_CASE("nothing waits for a host that hangs") {
    World world;
    const HWND window = world.openWindow("host", hostRect);
    CountingForm form;
    const HWND hosted = host(form, window);
    const RECT corner = rectOf(hosted);
    // Far longer than all that follows: the host is ended while it still sleeps.
    world.hangOtherProgram(120'000);

    using Clock = std::chrono::steady_clock;
    const auto returnsSoon = [](const char* what, const std::function<void()>& call) {
        const Clock::time_point begin = Clock::now();
        call();
        CHECK_MESSAGE(Clock::now() - begin < std::chrono::seconds(3), what);
    };
    returnsSoon("SetWindowPos", [&] { platform::SetWindowPos(window, 0, 0, 0, 0, 0, 3); });
    returnsSoon("SendMessageA off", [&] { platform::SendMessageA(window, 11, 0, 0); });
    returnsSoon("SendMessageA on", [&] { platform::SendMessageA(window, 11, 1, 0); });
    returnsSoon("RedrawWindow", [&] { platform::RedrawWindow(window, {0, 0, 800, 600}, 0x185); });
    returnsSoon("GetWindowTextA", [&] {
        char title[256] = {};
        platform::GetWindowTextA(window, title, 256);
        CHECK(std::string(title) == "host");
    });
    returnsSoon("GetWindowTextLengthA", [&] { platform::GetWindowTextLengthA(window); });
    returnsSoon("rectangles", [&] {
        RECT client;
        CHECK(rectOf(window) == hostRect);
        CHECK(platform::GetClientRect(window, client));
        CHECK(platform::IsWindow(window));
    });
    returnsSoon("SetParent out", [&] { CHECK(platform::SetParent(hosted, HWND::none) == window); });
    returnsSoon("Height", [&] { form.setHeight(form.height() + forms::Resolution().toTwips(22)); });
    returnsSoon("SetParent in", [&] { platform::SetParent(hosted, window); });
    returnsSoon("RedrawWindow of the form", [&] { platform::RedrawWindow(hosted, {0, 0, 120, 42}, 0x185); });
    returnsSoon("MoveWindow", [&] { platform::MoveWindow(hosted, 60, 0, widthOf(corner), 60, true); });
    returnsSoon("SetWindowPos of the form", [&] { platform::SetWindowPos(hosted, 0, 0, 0, 0, 0, 3); });
    CHECK(form.hWnd() == hosted);
    CHECK(rectOf(hosted).left == corner.left + 60);
    returnsSoon("BringWindowToTop", [&] { platform::BringWindowToTop(window); });
    returnsSoon("ShowWindow", [&] { platform::ShowWindow(window, 9); });
    returnsSoon("MoveWindow of the host", [&] { platform::MoveWindow(window, 0, 0, 300, 300, true); });
    returnsSoon("DoEvents", [&] { platform::doEvents(); });
    returnsSoon("Activation", [&] { platform::appActivate("host"); });
    returnsSoon("Keys", [&] { platform::sendKeys(runtime::parseKeyText("x"), true); });

    CHECK(form.hWnd() == hosted);
    world.killOtherProgram();
    CHECK(World::until([&] { return form.hWnd() == HWND::none; }));
}

TEST_SUITE_END();
