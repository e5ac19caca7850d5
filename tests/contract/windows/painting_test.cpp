// Our windows while the program is at work that takes long.
#include "contract/toolForm.h"
#include "contract/world.h"
#include "platform/kernel32.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <string>

namespace {

bool isPainted(HWND window) {
    return GetUpdateRect(window, nullptr, FALSE) == FALSE;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/painting");

TEST_CASE("a window that is uncovered while many settings are written is painted before they are done") {
    contract::World world;
    contract::ToolForm form;
    form.load();
    form.show();
    const auto window = reinterpret_cast<HWND>(form.window());
    REQUIRE(contract::World::until([&] { return isPainted(window); }));
    PostMessageA(window, WM_NULL, 0, 0);
    InvalidateRect(window, nullptr, TRUE);
    REQUIRE_FALSE(isPainted(window));
    const std::string file = world.path("many.ini");
    const auto write = [&file] {
        return platform::WritePrivateProfileStringA("Section", "key", "value", file.c_str()) != 0;
    };
    const ULONGLONG begin = GetTickCount64();
    while (!isPainted(window) && GetTickCount64() - begin < 10'000)
        REQUIRE(write());
    CHECK(isPainted(window));
    // Nothing else was served.
    MSG message{};
    CHECK(PeekMessageA(&message, window, WM_NULL, WM_NULL, PM_REMOVE) != FALSE);
}

TEST_SUITE_END();
