// Hosts that change under the program: the system shows a picture of one that hangs, or keeps us out of one.
#include "desktop/program.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <string>

using desktop::Program;
using platform::HWND;
using store::EditorKind;

namespace {

/// A program that has been started beside a running EAGLE.
struct Running : Program {
    Running() {
        desk().startProcess("EAGLE.EXE");
        REQUIRE(start());
    }
};

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

TEST_SUITE_END();
