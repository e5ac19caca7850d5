// Hosts that change under the program: the system shows a picture of one that hangs, or keeps us out of one.
#include "core/running.h"
#include "desktop/program.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <string>
#include <string_view>

using desktop::Program;
using platform::HWND;
using store::EditorKind;

namespace {

/// Windows of the program's own that stand on the desktop for the user to see.
int seenOnDesktop(desktop::World& desk) {
    return static_cast<int>(std::ranges::count_if(desk.order, [&desk](HWND window) {
        return desk.window(window).process == desktop::programProcess && desk.isSeen(window);
    }));
}

int callsOf(desktop::World& desk, std::string_view name) {
    return static_cast<int>(std::ranges::count_if(
        desk.calls, [name](const std::string& call) { return call.starts_with(name); }));
}

} // namespace

TEST_SUITE_BEGIN("core/hosts");

TEST_CASE("the picture of a board that hangs gets no toolbar, and the board keeps its own") {
    Running program;
    const HWND board = program.desk().openWindow("1 Board - x.brd - EAGLE");
    program.ticks(1);
    REQUIRE(program.hosted(EditorKind::board) == 1);
    const HWND ghost = program.desk().makeGhost(board);
    program.ticks(30);
    CHECK(program.hosted(EditorKind::board) == 1);
    CHECK(program.desk().window(ghost).children.empty());
    program.desk().endGhost(ghost, board);
    program.ticks(2);
    CHECK(program.hosted(EditorKind::board) == 1);
    CHECK(program.desk().window(board).children.size() == 1);
}

TEST_CASE("a board that hangs before it has been seen gets its toolbar all the same") {
    Running program;
    const HWND board = program.desk().openWindow("1 Board - x.brd - EAGLE");
    const HWND ghost = program.desk().makeGhost(board);
    program.ticks(1);
    REQUIRE(program.hosted(EditorKind::board) == 1);
    CHECK(program.toolbar(EditorKind::board, 1).eagHND == board);
    CHECK(program.desk().window(ghost).children.empty());
}

TEST_CASE("an EAGLE run as administrator refuses toolbar and calculator, once, and nothing stands about") {
    Running program;
    store::unitCalcActive = 1;
    const int before = seenOnDesktop(program.desk());
    const HWND board = program.desk().openWindow("1 Board - x.brd - EAGLE");
    program.desk().window(board).elevated = true;
    program.ticks(1);
    REQUIRE(program.hosted(EditorKind::board) == 1);
    CHECK(program.toolbar(EditorKind::board, 1).eagHND == board);
    REQUIRE(program.form().calculators.size() == 2);
    CHECK(program.desk().window(board).children.empty());
    // A calculator's own form is an empty one beyond all screens, as it is beside a host that takes its
    // frame.
    CHECK_FALSE(program.desk().isSeen(program.toolbar(EditorKind::board, 1).window()));
    CHECK_FALSE(program.desk().isSeen(program.form().calculators[1]->fraMil.hWnd()));
    CHECK(seenOnDesktop(program.desk()) == before + 1);
    program.desk().calls.clear();
    program.ticks(20);
    CHECK(program.hosted(EditorKind::board) == 1);
    CHECK(program.form().calculators.size() == 2);
    CHECK(callsOf(program.desk(), "SetParent") == 0);
    CHECK_FALSE(program.desk().isSeen(program.toolbar(EditorKind::board, 1).window()));
    CHECK_FALSE(program.desk().isSeen(program.form().calculators[1]->fraMil.hWnd()));
    // Another EAGLE beside it has its toolbar.
    const HWND other = program.desk().openWindow("1 Board - y.brd - EAGLE");
    program.ticks(1);
    REQUIRE(program.hosted(EditorKind::board) == 2);
    CHECK(program.desk().window(other).children.size() == 2);
    CHECK(program.desk().isSeen(program.toolbar(EditorKind::board, 2).window()));
}

TEST_CASE("a board that dies while its toolbar is built leaves nothing on the desktop") {
    Running program;
    const HWND board = program.desk().openWindow("1 Board - x.brd - EAGLE");
    program.desk().window(board).dying = true;
    const int before = seenOnDesktop(program.desk());
    program.ticks(3);
    CHECK(program.desk().find(board) == nullptr);
    CHECK(program.hosted(EditorKind::board) == 1);
    CHECK(seenOnDesktop(program.desk()) == before);
}

TEST_SUITE_END();
