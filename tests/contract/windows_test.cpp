// Windows of other programs: order, titles, rectangles, death.
#include "codePages.h"
#include "contract/world.h"
#include "platform/programs.h"
#include "platform/user32.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <array>
#include <vector>

namespace {

using contract::World;
using platform::HWND;
using platform::RECT;

int collect(HWND window, std::intptr_t extra) {
    reinterpret_cast<std::vector<HWND>*>(extra)->push_back(window);
    return 1;
}

int stopAtOnce(HWND /*window*/, std::intptr_t extra) {
    ++*reinterpret_cast<int*>(extra);
    return 0;
}

/// Those of `wanted` in the order in which the platform enumerates them; other windows are not the test's.
std::vector<HWND> enumerated(const std::vector<HWND>& wanted) {
    std::vector<HWND> all;
    CHECK(platform::EnumWindows(collect, reinterpret_cast<std::intptr_t>(&all)));
    std::erase_if(all, [&](HWND window) { return std::ranges::find(wanted, window) == wanted.end(); });
    return all;
}

/// What is read into a buffer of `size` characters, with the count that the platform gives.
struct Title {
    int count;
    std::string text;
    bool operator==(const Title&) const = default;
};

Title titleOf(HWND window, int size) {
    std::vector<char> buffer(static_cast<std::size_t>(size) + 1, '#');
    const int count = platform::GetWindowTextA(window, buffer.data(), size);
    CHECK(buffer.at(static_cast<std::size_t>(count)) == '\0');
    CHECK(buffer.back() == '#');
    return {count, std::string(buffer.data(), static_cast<std::size_t>(count))};
}

HWND deadWindow(World& world) {
    const HWND window = world.openWindow("dead");
    world.closeWindow(window);
    REQUIRE(World::until([&] { return !platform::IsWindow(window); }));
    return window;
}

void setWindowOnTop(HWND window) {
    CHECK(platform::SetWindowPos(window, 0, 0, 0, 0, 0, 3));
}

} // namespace

TEST_SUITE_BEGIN("contract/windows");

TEST_CASE("the system's picture of a window that hangs is left out of the enumeration, for every caller") {
    World world;
    const HWND hung = world.openWindow("1 Board - C:\\work\\a.brd - EAGLE");
    const HWND ghost = world.openGhost("1 Board - C:\\work\\a.brd - EAGLE (Not Responding)");
    setWindowOnTop(ghost);
    // Twice: what is known of a window is the same the next time.
    CHECK(enumerated({hung, ghost}) == std::vector{hung});
    CHECK(enumerated({hung, ghost}) == std::vector{hung});
    platform::appActivate("1 Board - ");
    CHECK(World::until([&] { return World::foreground() == hung; }));
    CHECK(platform::IsWindow(ghost));
}

TEST_CASE("windows are enumerated from the top of their order down, hidden ones too") {
    World world;
    const HWND bottom = world.openWindow("bottom");
    const HWND hidden = world.openWindow("hidden", {0, 0, 100, 100}, false);
    const HWND top = world.openWindow("top");
    const std::vector<HWND> all = {bottom, hidden, top};
    // Raised again until it holds: a window manager may bring one of them forward late.
    CHECK(World::until([&] {
        for (const HWND window : all)
            setWindowOnTop(window);
        return enumerated(all) == std::vector{top, hidden, bottom};
    }));
}

TEST_CASE("a window that is raised comes to the top of the order") {
    World world;
    const HWND first = world.openWindow("first");
    const HWND second = world.openWindow("second");
    const HWND third = world.openWindow("third");
    const std::vector<HWND> all = {first, second, third};
    REQUIRE(World::until([&] { return enumerated(all) == std::vector{third, second, first}; }));
    RECT before;
    REQUIRE(platform::GetWindowRect(first, before));
    setWindowOnTop(first);
    CHECK(World::until([&] { return enumerated(all) == std::vector{first, third, second}; }));
    RECT after;
    CHECK(platform::GetWindowRect(first, after));
    CHECK(after == before);
    CHECK(platform::BringWindowToTop(second));
    CHECK(World::until([&] { return enumerated(all) == std::vector{second, first, third}; }));
}

TEST_CASE("an enumeration ends where the callback says so") {
    World world;
    world.openWindow("one");
    world.openWindow("two");
    int calls = 0;
    CHECK_FALSE(platform::EnumWindows(stopAtOnce, reinterpret_cast<std::intptr_t>(&calls)));
    CHECK(calls == 1);
}

TEST_CASE("a closed window is enumerated no more") {
    World world;
    const HWND stays = world.openWindow("stays");
    const HWND goes = world.openWindow("goes");
    const std::vector<HWND> all = {stays, goes};
    REQUIRE(World::until([&] { return enumerated(all).size() == 2; }));
    world.closeWindow(goes);
    CHECK(World::until([&] { return enumerated(all) == std::vector{stays}; }));
}

TEST_CASE("a title is cut to one less than the size, and the cut count is given") {
    World world;
    const HWND window = world.openWindow("2 Board - C:\\projects\\test.brd - EAGLE");
    CHECK(titleOf(window, 256) == Title{38, "2 Board - C:\\projects\\test.brd - EAGLE"});
    CHECK(titleOf(window, 39) == Title{38, "2 Board - C:\\projects\\test.brd - EAGLE"});
    CHECK(titleOf(window, 38) == Title{37, "2 Board - C:\\projects\\test.brd - EAGL"});
    CHECK(titleOf(window, 8) == Title{7, "2 Board"});
    CHECK(titleOf(window, 1) == Title{0, ""});
    CHECK(platform::GetWindowTextLengthA(window) == 38);
}

TEST_CASE("a title of 10,000 characters is cut like any other") {
    World world;
    const std::string title(10'000, 'x');
    const HWND window = world.openWindow(title);
    CHECK(titleOf(window, 256) == Title{255, title.substr(0, 255)});
    CHECK(platform::GetWindowTextLengthA(window) == 10'000);
    CHECK(titleOf(window, 10'001) == Title{10'000, title});
}

TEST_CASE("a title may hold umlauts, control characters or nothing") {
    World world;
    const std::string title = western("Bibliothek \xE4\xF6\xFC\xC4\xD6\xDC\xDF\x80 \x01\t\x1F end");
    const HWND window = world.openWindow(title);
    CHECK(titleOf(window, 256) == Title{static_cast<int>(title.size()), title});
    const HWND untitled = world.openWindow("");
    CHECK(titleOf(untitled, 256) == Title{0, ""});
    CHECK(platform::GetWindowTextLengthA(untitled) == 0);
}

TEST_CASE("a window that is renamed has its new title") {
    World world;
    const HWND window = world.openWindow("1 Schematic - a.sch");
    world.renameWindow(window, "1 Schematic - b.sch*");
    CHECK(titleOf(window, 256) == Title{20, "1 Schematic - b.sch*"});
}

TEST_CASE("a dead handle has no title and no rectangle, and nothing can be done to it") {
    World world;
    const HWND window = deadWindow(world);
    std::array<char, 256> buffer = {};
    CHECK(platform::GetWindowTextA(window, buffer.data(), static_cast<int>(buffer.size())) == 0);
    CHECK(platform::GetWindowTextLengthA(window) == 0);
    const RECT untouched = {1, 2, 3, 4};
    RECT rect = untouched;
    CHECK_FALSE(platform::GetWindowRect(window, rect));
    CHECK(rect == untouched);
    CHECK_FALSE(platform::GetClientRect(window, rect));
    CHECK(rect == untouched);
    CHECK_FALSE(platform::MoveWindow(window, 0, 0, 10, 10, true));
    CHECK_FALSE(platform::SetWindowPos(window, 0, 0, 0, 0, 0, 3));
    CHECK_FALSE(platform::BringWindowToTop(window));
    CHECK_FALSE(platform::ShowWindow(window, 9));
    CHECK(platform::SendMessageA(window, 11, 0, 0) == 0);
    CHECK_FALSE(platform::RedrawWindow(window, {0, 0, 10, 10}, 0x185));
    CHECK_FALSE(platform::IsWindow(HWND::none));
}

TEST_CASE("the client rectangle begins at 0 and lies inside the outer one") {
    World world;
    const HWND window = world.openWindow("w", {100, 120, 700, 520});
    RECT outer;
    RECT client;
    REQUIRE(platform::GetWindowRect(window, outer));
    REQUIRE(platform::GetClientRect(window, client));
    CHECK(outer == RECT{100, 120, 700, 520});
    CHECK(client.left == 0);
    CHECK(client.top == 0);
    CHECK(client.right > 500);
    CHECK(client.right < 600);
    CHECK(client.bottom > 300);
    CHECK(client.bottom < 400);
}

TEST_CASE(
    "the window that is activated by title is the one with just that title, else the first that begins so") {
    World world;
    const HWND exact = world.openWindow("Control Panel");
    const HWND prefix = world.openWindow("Control Panel - left");
    const HWND other = world.openWindow("Kestrel's Control Panel");
    platform::appActivate("CONTROL panel");
    CHECK(World::until([&] { return World::foreground() == exact; }));
    platform::appActivate("control panel -");
    CHECK(World::until([&] { return World::foreground() == prefix; }));
    platform::appActivate("kestrel's");
    CHECK(World::until([&] { return World::foreground() == other; }));
    // Of letters beyond ASCII the case does not count either.
    const HWND umlaut = world.openWindow(western("\xC4nderung"));
    platform::appActivate("control panel");
    REQUIRE(World::until([&] { return World::foreground() == exact; }));
    platform::appActivate(western("\xE4NDER"));
    CHECK(World::until([&] { return World::foreground() == umlaut; }));
}

TEST_CASE("of several windows that begin with the text the one that lies highest is activated") {
    World world;
    const HWND lower = world.openWindow("Kestrel test a");
    const HWND upper = world.openWindow("Kestrel test b");
    world.openWindow("something else");
    REQUIRE(World::until([&] { return enumerated({lower, upper}) == std::vector{upper, lower}; }));
    platform::appActivate("kestrel test");
    CHECK(World::until([&] { return World::foreground() == upper; }));
}

TEST_CASE("activating a title that no window has fails with error 5") {
    World world;
    const HWND window = world.openWindow("Control Panel");
    try {
        platform::appActivate("Panel of no program");
        FAIL("nothing was raised");
    } catch (const runtime::RuntimeError& error) {
        CHECK(error.number == runtime::ErrorNumber::invalidCall);
    }
    CHECK(platform::IsWindow(window));
}

TEST_CASE("a window that the user has made an icon is one until it is restored; a dead one is none") {
    World world;
    const HWND window = world.openWindow("1 Board - a.brd");
    CHECK_FALSE(platform::IsIconic(window));
    constexpr int minimise = 6;
    platform::ShowWindow(window, minimise);
    CHECK(World::until([&] { return platform::IsIconic(window); }));
    platform::ShowWindow(window, platform::restoreWindow);
    CHECK(World::until([&] { return !platform::IsIconic(window); }));
    platform::BringWindowToTop(window);
    CHECK(World::until([&] { return World::foreground() == window; }));
    CHECK_FALSE(platform::IsIconic(deadWindow(world)));
    CHECK_FALSE(platform::IsIconic(HWND::none));
}

TEST_SUITE_END();
