// Shortcuts, and paths that are too long for the shell.
#include "platform/shortcut.h"

#include "contract/world.h"
#include "platform/files.h"

#include <doctest/doctest.h>

namespace {

using contract::World;

std::string bareName(const std::string& path) {
    return path.substr(path.rfind('\\') + 1);
}

} // namespace

TEST_SUITE_BEGIN("contract/shortcut");

TEST_CASE("a shortcut leads to its target, with its arguments") {
    World world;
    world.placeProgram(world.path("tool.exe"));
    world.makeShortcut(world.path("plain.lnk"), world.path("tool.exe"), "");
    world.makeShortcut(world.path("with.lnk"), world.path("tool.exe"), "/new \"a b\"");
    const auto plain = platform::readShortcut(world.path("plain.lnk"));
    REQUIRE(plain);
    CHECK(bareName(plain->target) == "tool.exe");
    CHECK(platform::dir(plain->target) == "tool.exe");
    CHECK(plain->arguments.empty());
    const auto with = platform::readShortcut(world.path("with.lnk"));
    REQUIRE(with);
    CHECK(with->arguments == "/new \"a b\"");
}

TEST_CASE("a dead shortcut still says where it led") {
    World world;
    world.makeShortcut(world.path("dead.lnk"), world.path("gone.exe"), "");
    const auto dead = platform::readShortcut(world.path("dead.lnk"));
    REQUIRE(dead);
    CHECK(bareName(dead->target) == "gone.exe");
    CHECK(platform::dir(dead->target).empty());
}

TEST_CASE("what is no shortcut gives nothing") {
    World world;
    world.writeFile(world.path("text.lnk"), "not a shortcut");
    world.writeFile(world.path("empty.lnk"), "");
    world.makeFolder(world.path("folder.lnk"));
    for (const char* name : {"text.lnk", "empty.lnk", "folder.lnk", "missing.lnk"}) {
        CAPTURE(name);
        CHECK_FALSE(platform::readShortcut(world.path(name)));
    }
    CHECK_FALSE(platform::readShortcut(""));
}

TEST_CASE("a path beyond 260 characters is none, and asking for it does no harm") {
    const World world;
    for (const std::size_t size : {300U, 40000U}) {
        const std::string path = world.path(std::string(size, 'x'));
        CHECK(platform::dir(path + ".exe").empty());
        CHECK_FALSE(platform::readShortcut(path + ".lnk"));
    }
}

TEST_SUITE_END();
