// What the switch `mend` changes in the core: the stories with it off are the ones of the oddities.
#include "core/launcher.h"
#include "mending.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <string>
#include <vector>

using platform::HWND;
using store::EditorKind;

namespace {

/// EAGLE runs and is to be brought to the front.
struct Front : Mending {
    explicit Front(bool on, const std::string& settings = {})
        : Mending(on, "[toolbar]\r\noneEAGLE=1\r\nEAGLEpath=C:\\e\\eagle.exe\r\n" + settings) {
        desk().writeFile("C:\\e\\eagle.exe", "MZ");
        panel = desk().openWindow("Control Panel - EAGLE");
    }
    HWND openIcon(const std::string& title) {
        const HWND window = desk().openWindow(title);
        desk().window(window).minimised = true;
        return window;
    }
    bool run() {
        desk().openWindow("another program");
        desk().calls.clear();
        return desk().event([] { core::startEagle(); });
    }
    int count(const std::string& call, HWND window, const std::string& rest = {}) {
        const std::string whole = call + " " + std::to_string(static_cast<std::uintptr_t>(window)) + rest;
        return static_cast<int>(std::ranges::count(desk().calls, whole));
    }

    HWND panel;
};

} // namespace

TEST_SUITE_BEGIN("core/mends");

TEST_CASE("a library before any schematic: off a toolbar more on each tick, on one for good") {
    for (const bool on : offAndOn) {
        CAPTURE(on);
        Mending program(on);
        store::unitCalcActive = 1;
        const HWND library = program.desk().openWindow("1 Library - a.lbr - EAGLE");
        program.ticks(5);
        CHECK(program.hosted(EditorKind::library) == (on ? 1 : 5));
        CHECK(program.form().calculators.size() == (on ? 2 : 6));
        CHECK(program.toolbar(EditorKind::library, 1).eagHND == library);
    }
}

TEST_CASE("several libraries beside fewer schematics: on each is known on the next tick") {
    Mending program(true);
    store::unitCalcActive = 1;
    program.desk().openWindow("Schematic - a.sch - EAGLE");
    for (const char* file : {"a.lbr", "b.lbr", "c.lbr"}) {
        program.desk().openWindow("Library - " + std::string(file) + " - EAGLE");
        program.ticks(3);
    }
    CHECK(program.hosted(EditorKind::library) == 3);
    CHECK(program.form().calculators.size() == 5);
    // A known library has its own calculator placed.
    const HWND last = program.toolbar(EditorKind::library, 3).eagHND;
    program.desk().resizeWindow(last, 1300, 700);
    program.ticks(1);
    CHECK(program.form().calculators[4]->fraMil.left() == 16500);
}

TEST_CASE("on, more schematics than libraries: a new library is new, once") {
    Mending program(true);
    for (const char* file : {"a.sch", "b.sch", "c.sch"}) {
        program.desk().openWindow("Schematic - " + std::string(file) + " - EAGLE");
        program.ticks(1);
    }
    program.desk().openWindow("Library - a.lbr - EAGLE");
    program.ticks(4);
    CHECK(program.hosted(EditorKind::library) == 1);
    CHECK(program.hosted(EditorKind::schematic) == 3);
}

TEST_CASE(
    "numbered titles in the front sequence: off error 5 ends the program, on all come, the board last") {
    for (const bool on : offAndOn) {
        CAPTURE(on);
        Front program(on);
        const HWND board = program.openIcon("1 Board - C:\\w\\a.brd - EAGLE");
        const HWND schematic = program.desk().openWindow("2 Schematic - C:\\w\\a.sch - EAGLE");
        const HWND library = program.openIcon("3 Library - C:\\w\\a.lbr - EAGLE");
        CHECK(program.run() == on);
        CHECK(program.desk().messageBoxes.size() == (on ? 0 : 1));
        if (!on) {
            CHECK(program.desk().messageBoxes[0].text ==
                  "Run-time error '5':\r\n\r\nInvalid procedure call or argument");
            continue;
        }
        CHECK(program.desk().foreground == board);
        std::vector<HWND> front(program.desk().order.begin(), program.desk().order.begin() + 4);
        CHECK(front == std::vector{board, schematic, library, program.panel});
        for (const HWND window : {board, library}) {
            CHECK_FALSE(program.desk().window(window).minimised);
            CHECK(program.count("ShowWindow", window, " 9") == 1);
        }
        // One that is no icon is left as large as it is.
        CHECK(program.count("ShowWindow", schematic, " 9") == 0);
    }
}

TEST_CASE("on, a window that several words fit is restored once, however busy it is") {
    Front program(true);
    const HWND both = program.openIcon("2 Schematic - C:\\board\\library.sch - EAGLE");
    program.desk().window(both).busy = true;
    REQUIRE(program.run());
    CHECK(program.count("ShowWindow", both, " 9") == 1);
    CHECK(program.count("BringWindowToTop", both) == 3);
}

TEST_CASE("on, nothing but the control panel: it alone comes to the front") {
    Front program(true);
    REQUIRE(program.run());
    CHECK(program.desk().foreground == program.panel);
    CHECK(program.desk().activations.empty());
    CHECK(program.desk().calls.size() == 1);
}

TEST_CASE(
    "the window of EAGLEfile: off it is restored always and sought by its title's beginning, on as it is") {
    for (const bool on : offAndOn)
        for (const bool icon : {false, true}) {
            CAPTURE(on);
            CAPTURE(icon);
            Front program(on, "winEAGLE=1\r\nEAGLEfile=BOARD - A\r\n");
            const HWND board = program.desk().openWindow("Board - a.brd - EAGLE");
            program.desk().window(board).minimised = icon;
            REQUIRE(program.run());
            CHECK(program.desk().foreground == board);
            CHECK_FALSE(program.desk().window(board).minimised);
            CHECK(program.count("ShowWindow", board, " 9") == (icon || !on ? 1 : 0));
            CHECK(program.desk().activations.empty() == on);
        }
    Front numbered(true, "winEAGLE=1\r\nEAGLEfile=a.brd\r\n");
    const HWND board = numbered.openIcon("1 Board - a.brd - EAGLE");
    REQUIRE(numbered.run());
    CHECK(numbered.desk().foreground == board);
    CHECK(numbered.count("ShowWindow", board, " 9") == 1);
}

TEST_CASE("the kind word of EAGLEfile: off its window is only activated, on restored too, another never") {
    for (const bool on : offAndOn) {
        CAPTURE(on);
        Front program(on, "winEAGLE=1\r\nEAGLEfile=any schematic\r\n");
        const HWND schematic = program.openIcon("Schematic - a.sch - EAGLE");
        const HWND board = program.openIcon("1 Board - a.brd - EAGLE");
        REQUIRE(program.run());
        CHECK(program.desk().foreground == schematic);
        CHECK(program.desk().window(schematic).minimised == !on);
        CHECK(program.desk().window(board).minimised);
    }
    Front none(true, "winEAGLE=1\r\nEAGLEfile=any library\r\n");
    none.openIcon("1 Board - a.brd - EAGLE");
    REQUIRE(none.run());
    CHECK(none.desk().foreground == none.panel);
}

TEST_CASE("a library whose name begins with the bracket: off the end of the program, on nothing is written") {
    for (const bool on : offAndOn) {
        CAPTURE(on);
        Mending program(on);
        program.desk().openWindow("1 Library - (new) - EAGLE");
        program.ticks(1);
        CHECK(program.desk().ended == !on);
        if (!on)
            continue;
        CHECK(program.hosted(EditorKind::library) == 1);
        CHECK(program.form().lastOpened[2].empty());
        CHECK(program.desk().settings() == "[global]\r\nmend=1\r\n");
    }
}

TEST_CASE("a run request that its writer still holds: off the end of the program, on it is read when it is "
          "let go") {
    const std::string file = "C:\\kestrel\\execute.txt";
    for (const bool on : offAndOn) {
        CAPTURE(on);
        Mending program(on);
        program.desk().writeFile(file, "C:\\t\\x.exe \"a b\"\r\n");
        program.desk().file(file)->locked = true;
        program.desk().run(700);
        CHECK(program.desk().ended == !on);
        if (!on)
            continue;
        program.desk().run(5000);
        CHECK(program.desk().executed.empty());
        // The tracker works between the looks.
        program.desk().openWindow("1 Board - a.brd - EAGLE");
        program.desk().run(1400);
        CHECK(program.hosted(EditorKind::board) == 1);
        program.desk().file(file)->locked = false;
        program.desk().run(1400);
        REQUIRE(program.desk().executed.size() == 1);
        CHECK(program.desk().executed[0].parameters == "a b");
        CHECK_FALSE(program.desk().fileText(file));
        program.desk().run(2000);
        CHECK(program.desk().executed.size() == 1);
        CHECK(program.form().Timer2.enabled());
        CHECK(program.desk().messageBoxes.empty());
    }
}

TEST_CASE("on, a request that can be read but not be deleted, or that has vanished, does nothing") {
    const std::string file = "C:\\kestrel\\execute.txt";
    Mending program(true);
    program.desk().writeFile(file, "C:\\t\\x.exe");
    program.desk().file(file)->readOnly = true;
    program.desk().run(3000);
    CHECK(program.desk().executed.empty());
    program.desk().file(file)->readOnly = false;
    program.desk().run(1400);
    CHECK(program.desk().executed.size() == 1);
    program.desk().writeFile(file, "C:\\t\\x.exe");
    program.desk().run(300);
    program.desk().removeFile(file);
    program.desk().run(1400);
    CHECK(program.desk().executed.size() == 1);
    CHECK(program.form().Timer2.enabled());
}

TEST_CASE("a run request that is held at the start: off the end of the program, on a tick finds it") {
    const std::string file = "C:\\kestrel\\execute.txt";
    for (const bool on : offAndOn) {
        CAPTURE(on);
        desktop::Program program;
        program.desk().writeSettings(on ? "[global]\r\nmend=1\r\n" : "");
        program.desk().writeFile(file, "C:\\t\\x.exe");
        program.desk().file(file)->locked = true;
        CHECK(program.start() == on);
        if (!on)
            continue;
        program.desk().file(file)->locked = false;
        program.desk().run(1400);
        CHECK(program.desk().executed.size() == 1);
    }
}

TEST_SUITE_END();
