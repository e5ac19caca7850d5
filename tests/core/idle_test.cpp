// The end of the program after EAGLE has gone.
#include "desktop/program.h"

#include <doctest/doctest.h>

using desktop::Program;
using store::EditorKind;

TEST_SUITE_BEGIN("core/idle");

TEST_CASE("the 26th tick in a row without EAGLE ends the program, the 25th does not") {
    Program program;
    program.desk().writeSettings("[toolbar]\r\nautoToolbar=1\r\n");
    REQUIRE(program.start());
    program.ticks(25);
    CHECK_FALSE(program.desk().ended);
    CHECK(program.form().idleCount == 25);
    program.ticks(1);
    CHECK(program.desk().ended);
    CHECK_FALSE(program.desk().trayIcon.has_value());
}

TEST_CASE("the tick that ends the program goes no further") {
    Program program;
    program.desk().writeSettings("[toolbar]\r\nautoToolbar=1\r\n");
    REQUIRE(program.start());
    program.ticks(25);
    program.desk().openWindow("Board - x.brd - EAGLE");
    program.ticks(1);
    CHECK(program.hosted(EditorKind::board) == 0);
}

TEST_CASE("one tick with EAGLE sets the count back to 0") {
    Program program;
    program.desk().writeSettings("[toolbar]\r\nautoToolbar=1\r\n");
    REQUIRE(program.start());
    program.ticks(25);
    program.desk().startProcess("eagle.exe", 7);
    program.ticks(1);
    CHECK(program.form().idleCount == 0);
    program.desk().killProcess(7);
    program.ticks(25);
    CHECK_FALSE(program.desk().ended);
    program.ticks(1);
    CHECK(program.desk().ended);
}

TEST_CASE("with autoToolbar off the count never gets past 1") {
    Program program;
    REQUIRE(program.start());
    program.ticks(100);
    CHECK_FALSE(program.desk().ended);
    CHECK(program.form().idleCount == 1);
}

TEST_CASE("autoToolbar switched off in the file takes effect on the next tick") {
    Program program;
    program.desk().writeSettings("[toolbar]\r\nautoToolbar=1\r\n");
    REQUIRE(program.start());
    program.ticks(25);
    program.desk().writeSettings("[toolbar]\r\nautoToolbar=0\r\n");
    program.ticks(1);
    CHECK_FALSE(program.desk().ended);
    CHECK(program.form().idleCount == 1);
}

TEST_CASE("while EAGLE runs the settings file is not read by the idle test") {
    Program program;
    program.desk().startProcess("eagle.exe");
    REQUIRE(program.start());
    program.desk().settingsReads = 0;
    program.ticks(5);
    CHECK(program.desk().settingsReads == 0);
}

TEST_SUITE_END();
