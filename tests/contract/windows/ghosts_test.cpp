// Pictures of windows that hang are left out of each walk, and a walk asks about new windows alone.
#include "contract/windows/importHook.h"
#include "contract/world.h"
#include "platform/user32.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace {

using contract::World;

/// The classes of the windows that the system shows, by their handles.
std::map<HWND, std::string> shown;
int questions = 0;

BOOL WINAPI walk(WNDENUMPROC callback, LPARAM parameter) {
    for (const auto& [window, name] : shown)
        if (callback(window, parameter) == FALSE)
            return FALSE;
    return TRUE;
}

int WINAPI className(HWND window, char* name, int size) {
    ++questions;
    const std::string& found = shown[window];
    const std::size_t copied = found.copy(name, static_cast<std::size_t>(size) - 1);
    name[copied] = '\0';
    return static_cast<int>(copied);
}

/// The system's windows from its making to its end are those of `shown`.
class Shown {
  public:
    Shown() {
        shown.clear();
        questions = 0;
    }

  private:
    contract::ImportHook walk_{"EnumWindows", reinterpret_cast<void*>(walk)};
    contract::ImportHook name_{"GetClassNameA", reinterpret_cast<void*>(className)};
};

HWND handle(std::uintptr_t number) {
    return reinterpret_cast<HWND>(number);
}

std::vector<HWND> met() {
    std::vector<HWND> windows;
    platform::EnumWindows(
        [](platform::HWND window, std::intptr_t extra) {
            reinterpret_cast<std::vector<HWND>*>(extra)->push_back(win32::native(window));
            return 1;
        },
        reinterpret_cast<std::intptr_t>(&windows));
    return windows;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/ghosts");

TEST_CASE("a window is asked for its class once, however long it stands, and a picture in each walk") {
    World world;
    world.cutOff("ghosts.invalid"); // for a clock that goes by itself
    const Shown windows;
    for (std::uintptr_t number = 1; number <= 100; ++number)
        shown[handle(number << 20U)] = number % 10 == 0 ? "Ghost" : "Ghostly";
    for (int time = 0; time < 5; ++time) {
        CHECK(met().size() == 90);
        world.passTime(61'000);
    }
    CHECK(questions == 100 + 4 * 10);
    shown[handle(7)] = "Ghost";
    CHECK(met().size() == 90);
    CHECK(questions == 140 + 10 + 1);
}

TEST_CASE("an editor that has got a picture's handle between two walks is found") {
    const World world;
    const Shown windows;
    shown = {{handle(8), "Ghost"}, {handle(16), "Editor"}};
    CHECK(met() == std::vector<HWND>{handle(16)});
    shown[handle(8)] = "Editor";
    CHECK(met() == std::vector<HWND>{handle(8), handle(16)});
    questions = 0;
    CHECK(met().size() == 2);
    CHECK(questions == 0);
    shown = {};
    CHECK(met().empty());
}

TEST_CASE("a handle that another window has got since is judged by that one") {
    const World world;
    const Shown windows;
    shown = {{handle(8), "Ghost"}, {handle(16), "Editor"}};
    CHECK(met() == std::vector<HWND>{handle(16)});
    shown = {};
    CHECK(met().empty());
    shown = {{handle(8), "Editor"}, {handle(16), "Ghost"}};
    CHECK(met() == std::vector<HWND>{handle(8)});
    shown = {};
    CHECK(met().empty());
}

TEST_CASE("a walk that ends early and one inside another forget nothing that is there") {
    const World world;
    const Shown windows;
    shown = {{handle(8), "Editor"}, {handle(16), "Ghost"}, {handle(24), "Editor"}};
    CHECK(met().size() == 2);
    platform::EnumWindows(
        [](platform::HWND, std::intptr_t) {
            CHECK(met().size() == 2);
            return 0;
        },
        0);
    CHECK(met().size() == 2);
    CHECK(questions == 3 + 2); // the picture anew in both walks that have come to it
    shown = {};
    CHECK(met().empty());
}

TEST_CASE("a window that has gone is forgotten though every walk ends early") {
    const World world;
    const Shown windows;
    const auto first = [] {
        HWND found = nullptr;
        platform::EnumWindows(
            [](platform::HWND window, std::intptr_t extra) {
                *reinterpret_cast<HWND*>(extra) = win32::native(window);
                return 0;
            },
            reinterpret_cast<std::intptr_t>(&found));
        return found;
    };
    shown = {{handle(8), "Editor"}, {handle(16), "Editor"}, {handle(24), "Ghostly"}};
    CHECK(first() == handle(8));
    shown.erase(handle(8));
    for (int walks = 0; walks < 301; ++walks)
        CHECK(first() == handle(16));
    CHECK(questions == 2);
    shown[handle(8)] = "Ghost";
    CHECK(first() == handle(16));
    CHECK(questions == 3);
    // What no walk has come to for so long is asked anew.
    CHECK(met().size() == 2);
    CHECK(questions == 3 + 2); // the picture once more
}

TEST_SUITE_END();
