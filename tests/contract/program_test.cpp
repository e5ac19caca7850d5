// Starting programs by one command line.
#include "contract/world.h"
#include "platform/programs.h"
#include "platform/shell32.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

namespace {

using contract::World;

constexpr int normalWithFocus = 1;

bool startFails(const std::string& commandLine) {
    try {
        platform::shell(commandLine, normalWithFocus);
    } catch (const runtime::RuntimeError& error) {
        return error.number == runtime::ErrorNumber::fileNotFound;
    }
    return false;
}

/// What the program at `path` was started with, once it has told.
std::string awaitStart(World& world, const std::string& path) {
    World::until([&] { return world.startedWith(path).has_value(); });
    return world.startedWith(path).value_or("not started");
}

/// The command line that a program sees which was started without quotes around its blanks.
std::string seenBy(const std::string& program, const std::string& rest) {
    // Known gap: Wine puts the quotes around the path that it has found.
    const bool quotes = contract::worldKind() == contract::WorldKind::wine;
    return (quotes ? "\"" + program + "\"" : program) + rest;
}

} // namespace

TEST_SUITE_BEGIN("contract/program");

TEST_CASE("a program is started with its command line as it stands") {
    World world;
    const std::string program = world.path("tool.exe");
    world.placeProgram(program);
    const std::string commandLine = program + " /a \"b c\"";
    platform::shell(commandLine, normalWithFocus);
    CHECK(awaitStart(world, program) == commandLine);
}

TEST_CASE("a path with blanks starts without quotes") {
    World world;
    world.makeFolder(world.path("My Tools"));
    const std::string program = world.path("My Tools\\x y.exe");
    world.placeProgram(program);
    platform::shell(program + " C:\\My Files\\a.brd", normalWithFocus);
    CHECK(awaitStart(world, program) == seenBy(program, " C:\\My Files\\a.brd"));
}

TEST_CASE("of several beginnings that are programs the shortest is started") {
    World world;
    const std::string shorter = world.path("My.exe");
    const std::string longer = world.path("My Tool.exe");
    world.placeProgram(longer);
    platform::shell(longer, normalWithFocus);
    CHECK(awaitStart(world, longer) == seenBy(longer, ""));
    world.placeProgram(shorter);
    platform::shell(longer, normalWithFocus);
    CHECK(awaitStart(world, shorter) == longer);
}

TEST_CASE("a program that is not there fails with error 53") {
    World world;
    CHECK(startFails(world.path("nosuch.exe")));
    CHECK(startFails(world.path("nosuch folder\\x.exe") + " /a"));
    CHECK(startFails("\"" + world.path("nosuch.exe") + "\" /a"));
    CHECK(startFails(""));
    world.makeFolder(world.path("folder"));
    CHECK(startFails(world.path("folder")));
}

TEST_CASE("the shell opens a program with its parameters") {
    World world;
    world.makeFolder(world.path("My Tools"));
    const std::string program = world.path("My Tools\\x y.exe");
    world.placeProgram(program);
    CHECK(platform::ShellExecuteA(platform::HWND::none, "Open", program.c_str(), "a \"b", "",
                                  normalWithFocus) > 32);
    CHECK(awaitStart(world, program).ends_with(" a \"b"));
}

TEST_CASE("a program that needs more rights is started once the user agrees, and nobody waits for that") {
    World world;
    world.makeFolder(world.path("My Tools"));
    const std::string program = world.path("My Tools\\x y.exe");
    world.placeProgram(program);
    world.needMoreRights(program);
    const std::string bare = world.path("My Tools\\x y");
    int questions = 0;
    for (const std::string& start : {program, "\"" + program + "\"", bare}) {
        const std::int64_t begin = World::clock();
        CHECK_FALSE(startFails(start + " C:\\My Files\\a.brd \"b c\""));
        CHECK(World::clock() - begin < 1000);
        ++questions;
        REQUIRE(World::until([&] { return world.questions() == questions; }));
        CHECK_FALSE(world.startedWith(program).has_value());
        world.answerQuestion(true);
        CHECK(awaitStart(world, program).ends_with(" C:\\My Files\\a.brd \"b c\""));
        world.forgetStarts(program);
    }
}

TEST_CASE("a user who refuses hears nothing more") {
    World world;
    const std::string program = world.path("tool.exe");
    world.placeProgram(program);
    world.needMoreRights(program);
    CHECK_FALSE(startFails(program + " /a"));
    REQUIRE(World::until([&] { return world.questions() == 1; }));
    world.answerQuestion(false);
    CHECK_FALSE(startFails(program + " /a"));
    REQUIRE(World::until([&] { return world.questions() == 2; }));
    CHECK_FALSE(world.startedWith(program).has_value());
}

TEST_CASE("without a file the shell is not asked: it would open the current folder") {
    World world;
    world.needMoreRights(world.path("tool.exe")); // whatever the shell is asked is a question then
    for (const char* file : {"", " ", "  "})
        CHECK(platform::ShellExecuteA(platform::HWND::none, "Open", file, "/a", "", normalWithFocus) == 2);
    CHECK(world.questions() == 0);
}

TEST_CASE("what the shell cannot open fails with a small number and no message") {
    World world;
    for (const std::string& file : {std::string(), world.path("nosuch.exe"), std::string(100'000, 'x')})
        CHECK(platform::ShellExecuteA(platform::HWND::none, "Open", file.c_str(), "", "", normalWithFocus) <=
              32);
}

TEST_SUITE_END();
