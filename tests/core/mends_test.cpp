// What the switch `mend` changes in the core: the stories with it off are the ones of the oddities.
#include "mending.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <string>

using platform::HWND;
using store::EditorKind;

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

TEST_SUITE_END();
