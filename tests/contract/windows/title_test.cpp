// Titles of windows that belong to another thread of our own.
#include "contract/windows/silentThread.h"
#include "contract/world.h"
#include "platform/programs.h"
#include "platform/user32.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <array>
#include <chrono>
#include <string>

TEST_SUITE_BEGIN("contract/windows/title");

TEST_CASE("a title is read without a message to the window's thread") {
    const contract::World world;
    const std::string title = "silent " + std::string(700, 't');
    const contract::SilentThread other("STATIC", title);
    const auto begin = std::chrono::steady_clock::now();
    std::array<char, 1024> text{};
    CHECK(platform::GetWindowTextLengthA(other.window()) == static_cast<int>(title.size()));
    CHECK(platform::GetWindowTextA(other.window(), text.data(), static_cast<int>(text.size())) ==
          static_cast<int>(title.size()));
    CHECK(text.data() == title);
    CHECK(platform::GetWindowTextA(other.window(), text.data(), 7) == 6);
    CHECK(std::string(text.data()) == "silent");
    CHECK_THROWS_AS(platform::appActivate("no window begins so"), runtime::RuntimeError);
    CHECK(std::chrono::steady_clock::now() - begin < std::chrono::seconds(2));
}

TEST_SUITE_END();
