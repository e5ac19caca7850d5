// How a window sees the screen, also one that is dead or none: it is asked without a look whether it is
// there.
#include "platform/awareness.h"
#include "win32/common/views.h"

#include "contract/world.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <cstdint>

namespace {

HWND newWindow() {
    return CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
}

platform::HWND handleOf(HWND window) {
    return platform::HWND{reinterpret_cast<std::uintptr_t>(window)};
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/views");

TEST_CASE("a window sees pixels and has a view, a dead one and none have neither") {
    const contract::World world;
    const HWND window = newWindow();
    CHECK(platform::dpiOf(handleOf(window)) >= 96);
    CHECK(win32::viewOf(window) != nullptr);
    DestroyWindow(window);
    for (const HWND gone : {window, static_cast<HWND>(nullptr)}) {
        CHECK(platform::dpiOf(handleOf(gone)) == 0);
        CHECK(win32::viewOf(gone) == nullptr);
    }
}

TEST_CASE("the view of a dead window changes nothing") {
    const contract::World world;
    const HWND window = newWindow();
    const HWND dead = newWindow();
    DestroyWindow(dead);
    const int before = platform::dpiOf(handleOf(window));
    {
        const platform::InAwarenessOf seen(handleOf(dead));
        CHECK(platform::dpiOf(handleOf(window)) == before);
    }
    DestroyWindow(window);
}

TEST_SUITE_END();
