// Directory lookup, and files read, written and deleted, on files of the world.
#include "codePages.h"
#include "contract/world.h"
#include "platform/executable.h"
#include "platform/files.h"
#include "platform/textFile.h"
#include "runtime/errorOf.h"

#include <doctest/doctest.h>

namespace {

using contract::World;
using runtime::errorOf;

} // namespace

TEST_SUITE_BEGIN("contract/files");

TEST_CASE("a directory lookup gives the bare name in its stored case") {
    World world;
    world.writeFile(world.path("Board.BRD"), "x");
    CHECK(platform::dir(world.path("Board.BRD")) == "Board.BRD");
    CHECK(platform::dir(world.path("board.brd")) == "Board.BRD");
    CHECK(platform::dir(world.path("BOARD.BRD")) == "Board.BRD");
    CHECK(platform::dir(world.path("Board.BR")).empty());
    world.removeFile(world.path("Board.BRD"));
    CHECK(platform::dir(world.path("Board.BRD")).empty());
}

TEST_CASE("umlauts in a name fold too") {
    World world;
    world.writeFile(world.path(western("Pl\xE4ne.brd")), "x");
    CHECK(platform::dir(world.path(western("PL\xC4NE.BRD"))) == western("Pl\xE4ne.brd"));
}

TEST_CASE("a directory lookup takes wildcards") {
    World world;
    world.writeFile(world.path("execute.txt"), "x");
    world.writeFile(world.path("other.dat"), "x");
    CHECK(platform::dir(world.path("*.txt")) == "execute.txt");
    CHECK(platform::dir(world.path("exec*")) == "execute.txt");
    CHECK(platform::dir(world.path("e?ecute.t?t")) == "execute.txt");
    CHECK(platform::dir(world.path("*.dat")) == "other.dat");
    CHECK(platform::dir(world.path("*.exe")).empty());
    CHECK(platform::dir(world.path("?.txt")).empty());
}

TEST_CASE("directories, hidden and system files are not found") {
    World world;
    world.makeFolder(world.path("folder.txt"));
    world.writeFile(world.path("hidden.txt"), "x", {.hidden = true});
    world.writeFile(world.path("system.txt"), "x", {.system = true});
    CHECK(platform::dir(world.path("folder.txt")).empty());
    CHECK(platform::dir(world.path("hidden.txt")).empty());
    CHECK(platform::dir(world.path("system.txt")).empty());
    CHECK(platform::dir(world.path("*.txt")).empty());
    world.writeFile(world.path("readonly.txt"), "x", {.readOnly = true});
    CHECK(platform::dir(world.path("*.txt")) == "readonly.txt");
}

TEST_CASE("a path that is empty or cannot exist finds nothing") {
    World world;
    world.writeFile(world.path("here.txt"), "x");
    CHECK(platform::dir("").empty());
    CHECK(platform::dir("Q:\\nosuch\\drive.txt").empty());
    CHECK(platform::dir(world.path("nosuch\\here.txt")).empty());
    CHECK(platform::dir(world.path("here.txt\\here.txt")).empty());
    CHECK(platform::dir(world.path("he<r>e|.txt")).empty());
    CHECK(platform::dir(std::string(5000, 'x')).empty());
}

TEST_CASE("a folder with blanks in its name is looked into") {
    World world;
    world.makeFolder(world.path("My Tools"));
    world.writeFile(world.path("My Tools\\x y.exe"), "x");
    CHECK(platform::dir(world.path("My Tools\\x y.exe")) == "x y.exe");
    CHECK(platform::dir(world.path("My Tools\\x y.exe /a")).empty());
}

TEST_CASE("a copy takes the place of what is there, and may be written") {
    World world;
    const std::string from = world.path("a.ini");
    const std::string to = world.path("a.sav");
    world.writeFile(from, "new", {.readOnly = true});
    world.writeFile(to, "something older");
    CHECK(platform::copyFile(from, to));
    CHECK(world.readFile(to) == "new");
    CHECK(world.readFile(from) == "new");
    CHECK(platform::dir(world.path("a.sav~")).empty()); // a copy's name while it is not whole
    platform::kill(to);
    CHECK_FALSE(world.readFile(to).has_value());
}

TEST_CASE("a copy that is to keep what is there does so, also where that is hidden") {
    World world;
    const std::string from = world.path("a.ini");
    world.writeFile(from, "new");
    for (const contract::FileMarks marks :
         {contract::FileMarks{}, contract::FileMarks{.hidden = true, .system = true}}) {
        const std::string to = world.path(marks.hidden ? "hidden.sav" : "a.sav");
        world.writeFile(to, "older", marks);
        CHECK_FALSE(platform::copyFile(from, to, platform::Existing::kept));
        CHECK(world.readFile(to) == "older");
        CHECK(platform::dir(to + "~").empty());
    }
    const std::string to = world.path("free.sav");
    CHECK(platform::copyFile(from, to, platform::Existing::kept));
    CHECK(world.readFile(to) == "new");
}

TEST_CASE("a copy of nothing, or into nothing, fails and leaves what is there") {
    World world;
    const std::string to = world.path("a.sav");
    world.writeFile(to, "old");
    CHECK_FALSE(platform::copyFile(world.path("none.ini"), to));
    CHECK(world.readFile(to) == "old");
    CHECK_FALSE(platform::copyFile(to, world.path("nosuch\\a.sav")));
    world.makeFolder(world.path("folder"));
    CHECK_FALSE(platform::copyFile(to, world.path("folder")));
    CHECK(platform::dir(world.path("folder~")).empty());
}

TEST_CASE("a file gets another name, in place of what has it") {
    World world;
    const std::string from = world.path("a.sav");
    const std::string to = world.path("a.bak");
    world.writeFile(from, "new");
    world.writeFile(to, "something older");
    CHECK(platform::renameFile(from, to));
    CHECK(world.readFile(to) == "new");
    CHECK_FALSE(world.readFile(from).has_value());
    CHECK_FALSE(platform::renameFile(from, to));
    CHECK(world.readFile(to) == "new");
}

TEST_CASE("a deleted file is gone") {
    World world;
    world.writeFile(world.path("execute.txt"), "x");
    platform::kill(world.path("EXECUTE.txt"));
    CHECK_FALSE(world.readFile(world.path("execute.txt")).has_value());
    CHECK(errorOf([&] { platform::kill(world.path("execute.txt")); }) == 53);
}

TEST_CASE("a file that cannot be deleted stays") {
    World world;
    const std::string path = world.path("file.txt");
    world.writeFile(path, "x", {.readOnly = true});
    CHECK(errorOf([&] { platform::kill(path); }) == 75);
    CHECK(world.readFile(path) == "x");
    world.writeFile(world.path("held.txt"), "x");
    world.lockFile(world.path("held.txt"));
    CHECK(errorOf([&] { platform::kill(world.path("held.txt")); }) == 70);
    world.makeFolder(world.path("folder"));
    CHECK(errorOf([&] { platform::kill(world.path("folder")); }) == 75);
}

TEST_CASE("the first line of a file is read, whatever it ends in") {
    World world;
    const struct {
        std::string content;
        std::string line;
    } cases[] = {
        {"C:\\x.exe /a\r\nsecond", "C:\\x.exe /a"},
        {"one line", "one line"},
        {"\r\nsecond", ""},
        {"unix\nsecond", "unix"},
        {"mac\rsecond", "mac"},
        {"", ""},
        {"  blanks \t\r\n", "  blanks \t"},
        {western("\xE4\xDF\x80\r\n"), western("\xE4\xDF\x80")},
    };
    for (const auto& [content, line] : cases) {
        world.writeFile(world.path("execute.txt"), content);
        CHECK(platform::readFirstLine(world.path("execute.txt")) == line);
    }
}

TEST_CASE("a line of 100,000 characters is read whole, and nothing of what follows") {
    World world;
    const std::string line(100'000, 'x');
    world.writeFile(world.path("execute.txt"), line + "\nsecond");
    CHECK(platform::readFirstLine(world.path("execute.txt")) == line);
    world.writeFile(world.path("execute.txt"), std::string("a\0b\r\nc", 6));
    CHECK(platform::readFirstLine(world.path("execute.txt")) == std::string("a\0b", 3));
}

TEST_CASE("of a file without line ends no more than a megabyte is read") {
    World world;
    const std::string huge(3U << 20U, 'x');
    world.writeFile(world.path("execute.txt"), huge);
    CHECK(platform::readFirstLine(world.path("execute.txt")).size() == 1U << 20U);
}

TEST_CASE("a file on a network that is not there is no file") {
    CHECK(platform::dir("\\\\nowhere.invalid\\share\\eagle.exe").empty());
    CHECK(platform::dir("//nowhere.invalid/share/eagle.exe").empty());
}

TEST_CASE("a file that cannot be read fails with the runtime's error") {
    World world;
    CHECK(errorOf([&] { platform::readFirstLine(world.path("nosuch.txt")); }) == 53);
    CHECK(errorOf([&] { platform::readFirstLine(world.path("nosuch\\file.txt")); }) == 76);
    world.makeFolder(world.path("folder"));
    CHECK(errorOf([&] { platform::readFirstLine(world.path("folder")); }) == 75);
    world.writeFile(world.path("held.txt"), "x");
    world.lockFile(world.path("held.txt"));
    CHECK(errorOf([&] { platform::readFirstLine(world.path("held.txt")); }) == 70);
}

TEST_CASE("text is appended to a file that grows by each call") {
    World world;
    const std::string path = world.path("report.EPT");
    platform::appendToFile(path, "one\r\n");
    CHECK(world.readFile(path) == "one\r\n");
    platform::appendToFile(path, western("\xE4") + std::string("\0\n", 2));
    CHECK(world.readFile(path) == "one\r\n" + western("\xE4") + std::string("\0\n", 2));
    platform::appendToFile(path, "");
    CHECK(world.readFile(path)->size() == 7 + western("\xE4").size());
    CHECK(platform::dir(path) == "report.EPT");
}

TEST_CASE("a written file holds the new text and nothing else") {
    World world;
    const std::string path = world.path("report.ERR");
    platform::writeFile(path, "a long first text");
    CHECK(world.readFile(path) == "a long first text");
    platform::writeFile(path, "short");
    CHECK(world.readFile(path) == "short");
}

TEST_CASE("a file that cannot be written fails with the runtime's error") {
    for (const auto write : {&platform::appendToFile, &platform::writeFile}) {
        World world;
        CHECK(errorOf([&] { write(world.path("nosuch\\file.txt"), "x"); }) == 76);
        world.makeFolder(world.path("folder"));
        CHECK(errorOf([&] { write(world.path("folder"), "x"); }) == 75);
        // Wine has the mark as a right of the file's owner, and a root user may do anything.
        if (contract::worldKind() != contract::WorldKind::wine) {
            world.writeFile(world.path("marked.txt"), "as it was", {.readOnly = true});
            CHECK(errorOf([&] { write(world.path("marked.txt"), "x"); }) == 75);
            CHECK(world.readFile(world.path("marked.txt")) == "as it was");
        }
        world.writeFile(world.path("held.txt"), "as it was");
        world.lockFile(world.path("held.txt"));
        CHECK(errorOf([&] { write(world.path("held.txt"), "x"); }) == 70);
    }
}

TEST_CASE("the program's folder has no separator at its end and holds the settings file") {
    World world;
    const std::string& folder = platform::programFolder();
    REQUIRE_FALSE(folder.empty());
    CHECK(folder.back() != '\\');
    CHECK(contract::World::settingsPath() == folder + "\\kestrel.ini");
    CHECK_FALSE(platform::currentDirectory().empty());
}

TEST_SUITE_END();
