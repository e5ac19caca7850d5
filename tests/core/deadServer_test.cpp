// EAGLE, programs and icons on a server of the network that does not answer.
#include "desktop/program.h"
#include "store/settings.h"

#include <doctest/doctest.h>

#include <cstdint>
#include <string>

using desktop::Program;
using platform::HWND;
using store::EditorKind;

namespace {

constexpr std::int64_t longest = 3000; // milliseconds
constexpr std::int64_t tick = 200;
constexpr int rows = 30;

/// EAGLE, which the start is to start, and the programs and icons of all buttons are on the server.
struct OnServer : Program {
    OnServer() {
        std::string settings =
            "[toolbar]\r\nEAGLEpath=\\\\cad\\apps\\eagle.exe\r\nautoEAGLE=1\r\n[board]\r\n";
        for (int row = 1; row <= rows; ++row) {
            const std::string digits = std::to_string(row);
            const std::string tool = "\\\\cad\\apps\\tool " + digits + ".exe";
            settings += digits + "name=Tool\r\n" + digits + "path=" + tool + "\r\n" + digits +
                        "icon=" + tool + ",0\r\n" + digits + "dialog=0\r\n" + digits + "type=0\r\n";
            desk().addIcons(tool, 1);
        }
        desk().writeFile("\\\\cad\\apps\\eagle.exe", "MZ");
        desk().writeSettings(settings);
        desk().startProcess("EAGLE.EXE");
    }
    /// Starts the program and opens a board. Gives the time that has gone by, the splash's among it.
    std::int64_t startWithBoard() {
        const std::int64_t begin = desk().now;
        REQUIRE(start());
        desk().openWindow("Board - a.brd - EAGLE");
        ticks(1);
        REQUIRE(hosted(EditorKind::board) == 1);
        REQUIRE(toolbar(EditorKind::board, 1).toolbar.buttons().size() == rows + 1);
        return desk().now - begin;
    }
    void click(std::size_t button) {
        desk().event([&] { toolbar(EditorKind::board, 1).toolbar.clickButton(button); });
    }
};

} // namespace

TEST_SUITE_BEGIN("core/deadServer");

TEST_CASE("the start and a toolbar of thirty rows cost three seconds together") {
    std::int64_t usual = 0;
    {
        OnServer program;
        usual = program.startWithBoard();
        CHECK(program.desk().started.size() == 1);
    }
    OnServer program;
    program.desk().cutOff("cad");
    const std::int64_t cost = program.startWithBoard() - usual;
    CHECK(cost > 0);
    CHECK(cost <= longest);
    CHECK(program.desk().servers.at("cad").asked == 1);
    CHECK(program.desk().started.empty());
    CHECK(program.desk().messageBoxes.size() == 1); // EAGLE's path is wrong, as far as one can tell
}

TEST_CASE("while it counts as missing clicks and new windows cost nothing, after a minute it works again") {
    OnServer program;
    program.desk().cutOff("cad");
    program.startWithBoard();
    const std::int64_t begin = program.desk().now;
    program.click(0);
    program.desk().openWindow("Board - b.brd - EAGLE");
    program.ticks(1);
    REQUIRE(program.hosted(EditorKind::board) == 2);
    program.click(1);
    CHECK(program.desk().now - begin == tick);
    CHECK(program.desk().servers.at("cad").asked == 1);
    program.desk().servers.at("cad").away = false;
    program.desk().run(60'000);
    program.click(2);
    REQUIRE(program.desk().started.size() == 1);
    CHECK(program.desk().started.front().program == "\\\\cad\\apps\\tool 3.exe");
}

TEST_SUITE_END();
