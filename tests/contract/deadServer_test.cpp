// Paths on a server of the network that does not answer.
#include "contract/world.h"
#include "platform/files.h"
#include "platform/programs.h"
#include "platform/shell32.h"
#include "runtime/errorOf.h"

#include <doctest/doctest.h>

#include <cstdint>
#include <string>

namespace {

using contract::World;
using platform::HICON;
using runtime::errorOf;

constexpr std::int64_t longest = 3000; // milliseconds
constexpr std::int64_t work = 500;     // that the calls themselves may take

std::uint32_t extract(const std::string& file) {
    HICON large = HICON::none;
    HICON small = HICON::none;
    return platform::ExtractIconExA(file.c_str(), 0, large, small);
}

int shellError(const std::string& commandLine) {
    return errorOf([&] { platform::shell(commandLine, platform::normalWithFocus); });
}

std::intptr_t open(const std::string& file) {
    return platform::ShellExecuteA(platform::HWND::none, "Open", file.c_str(), "", "",
                                   platform::showNormally);
}

} // namespace

TEST_SUITE_BEGIN("contract/deadServer");

TEST_CASE("icons, programs and file tests of its paths cost three seconds together and find nothing") {
    World world;
    world.cutOff("dead1.invalid", contract::Waiting::truly);
    const std::int64_t begin = World::clock();
    for (int row = 0; row < 30; ++row) {
        const std::string tool = "\\\\dead1.invalid\\tools\\tool " + std::to_string(row) + ".exe";
        CHECK(extract(tool) == 0);
        CHECK(platform::iconCount(tool.c_str()) == 0);
        CHECK(platform::dir(tool).empty());
        CHECK(platform::dir("//DEAD1.invalid/tools/*.exe").empty());
        CHECK(shellError(tool + " /a") == 53);
        CHECK(shellError("\"" + tool + "\" /a") == 53);
        CHECK(open(tool) <= 32);
    }
    const std::int64_t passed = World::clock() - begin;
    CHECK(passed >= longest);
    CHECK(passed < longest + work);
    CHECK(world.asked() == 1);
}

TEST_CASE("the icon chooser begins without a file that does not answer, and keeps its name") {
    World world;
    world.cutOff("dead2.invalid");
    const std::int64_t begin = World::clock();
    std::string file = "\\\\dead2.invalid\\tools\\tool.exe";
    std::int32_t index = 3;
    contract::ChooserCall call{};
    constexpr int cancelled = 0;
    CHECK(World::pickIcon({cancelled, u"", 0}, file, index, call) == cancelled);
    CHECK(call.file.empty());
    CHECK(file == "\\\\dead2.invalid\\tools\\tool.exe");
    CHECK(index == 3);
    CHECK(World::clock() - begin < longest + work);
}

TEST_CASE("once the time is up nothing is asked for a minute, however often a path is wanted") {
    World world;
    world.cutOff("dead3.invalid");
    const std::string path = "\\\\dead3.invalid\\tools\\tool.exe";
    CHECK(platform::dir(path).empty());
    const std::int64_t away = World::clock();
    world.passTime(58'000);
    CHECK(platform::dir(path).empty());
    CHECK(extract(path) == 0);
    CHECK(World::clock() - away < 58'000 + work);
    CHECK(world.asked() == 1);
    world.reconnect();
    world.passTime(2'000);
    CHECK(World::until([&] {
        CHECK(platform::dir(path).empty());
        return world.asked() == 2;
    }));
}

TEST_CASE("what is not on it is found as ever") {
    World world;
    world.cutOff("dead4.invalid");
    CHECK(platform::dir("\\\\dead4.invalid\\tools\\tool.exe").empty());
    const std::string here = world.path("tool.exe");
    world.placeProgram(here);
    const std::int64_t begin = World::clock();
    CHECK(platform::dir(here) == "tool.exe");
    CHECK(extract(world.iconFile(contract::IconSource::ico).path) == 1);
    CHECK(World::clock() - begin < work);
}

TEST_SUITE_END();
