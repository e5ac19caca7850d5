// A host that is busy for a moment or hangs: what the program asks of it waits there, and the program does
// not.
#include "desktop/program.h"
#include "platform/user32.h"
#include "toolbars/buttonTag.h"

#include <doctest/doctest.h>

#include <string>

using desktop::Program;
using platform::HWND;
using store::EditorKind;

namespace {

constexpr std::int64_t moment = 700; // milliseconds
constexpr std::int64_t minute = 60'000;

/// A toolbar in a board; the user is in another program.
struct Host : Program {
    Host() {
        desk().startProcess("eagle.exe", eagle);
        REQUIRE(start());
        board = desk().openWindow("Board - x.brd - EAGLE", {0, 0, 1024, 768}, eagle);
        ticks(1);
        REQUIRE(hosted(EditorKind::board) == 1);
        elsewhere = desk().openWindow("another program");
    }

    void click(std::int16_t dialog = 0) {
        store::ToolButton button;
        button.path = "drc";
        button.dialog = dialog;
        button.type = store::entryType::eagleCommand;
        forms::ToolbarButton clicked;
        clicked.key = "x1";
        clicked.tag = toolbars::buttonTag(button);
        desk().event([&] { toolbar(EditorKind::board, 1).Toolbar_ButtonClick(clicked); });
    }

    static constexpr std::uint32_t eagle = 7;
    HWND board = HWND::none;
    HWND elsewhere = HWND::none;
};

} // namespace

TEST_SUITE_BEGIN("core/hungHost");

TEST_CASE("a command for a host that is busy waits until that answers, and goes to no other window") {
    Host program;
    const std::int64_t begin = program.desk().now;
    program.desk().hang(program.board, moment);
    program.click();
    CHECK(program.desk().now - begin >= moment);
    CHECK(program.desk().now - begin < 2 * moment);
    REQUIRE(program.desk().typed.size() == 1);
    CHECK(program.desk().typed[0].window == program.board);
}

TEST_CASE(
    "a host that hangs is waited for no longer than some two seconds, and gets its command all the same") {
    Host program;
    const std::int64_t begin = program.desk().now;
    program.desk().hang(program.board, minute);
    program.click();
    CHECK(program.desk().now - begin < 3'000);
    REQUIRE(program.desk().typed.size() == 1);
    CHECK(program.desk().typed[0].window == program.board);
}

TEST_CASE("what was to come in front long ago and did not answer gets no command of another window") {
    Host program;
    constexpr std::uint32_t other = 8;
    const HWND panel = program.desk().openWindow("Control Panel", {0, 0, 400, 300}, other);
    program.desk().hang(panel, minute);
    program.desk().event([&] { platform::BringWindowToTop(panel); });
    program.click();
    REQUIRE(program.desk().typed.size() == 1);
    CHECK(program.desk().typed[0].window == program.board);
}

TEST_CASE("a host that was minimised and hangs is restored when it wakes") {
    Host program;
    program.desk().window(program.board).minimised = true;
    program.desk().hang(program.board, minute);
    program.click();
    CHECK(program.desk().window(program.board).minimised);
    program.desk().run(minute);
    CHECK_FALSE(program.desk().window(program.board).minimised);
}

TEST_CASE("a host that hangs while its toolbar is resized draws again when it wakes") {
    Host program;
    program.desk().hang(program.board, moment);
    program.desk().event([&] { program.toolbar(EditorKind::board, 1).Form_Resize(); });
    program.desk().run(minute);
    CHECK(program.desk().window(program.board).redraw);
}

TEST_CASE("a host that hangs is waited for once, and not to its end, when its own window is to change") {
    Host program;
    const std::int64_t begin = program.desk().now;
    program.desk().hang(program.board, minute);
    SUBCASE("raised") {
        program.desk().event([&] { platform::SetWindowPos(program.board, 0, 0, 0, 0, 0, 3); });
    }
    SUBCASE("brought to the front") {
        program.desk().event([&] { platform::BringWindowToTop(program.board); });
    }
    SUBCASE("moved") {
        program.desk().event([&] { platform::MoveWindow(program.board, 0, 0, 300, 300, true); });
    }
    CHECK(program.desk().now - begin == 200);
    program.desk().event([&] { platform::SetWindowPos(program.board, 0, 0, 0, 0, 0, 3); });
    CHECK(program.desk().now - begin == 200);
    CHECK(program.desk().order.front() == program.elsewhere);
    program.desk().run(minute);
    CHECK(program.desk().order.front() == program.board);
}

TEST_CASE("beside a host that hangs a window of ours changes its place, and asks only if it is seen") {
    Host program;
    const HWND hidden = program.form().hWnd();
    REQUIRE(hidden != HWND::none);
    REQUIRE_FALSE(program.desk().isSeen(hidden));
    const HWND seen = program.toolbar(EditorKind::board, 1).hWnd();
    REQUIRE(program.desk().isSeen(seen));
    const std::int64_t begin = program.desk().now;
    program.desk().hang(program.board, minute);
    program.desk().event([&] { platform::SetWindowPos(hidden, 0, 0, 0, 0, 0, 3); });
    CHECK(program.desk().now == begin);
    CHECK(program.desk().order.front() == hidden);
    program.desk().event([&] { platform::SetWindowPos(seen, 0, 0, 0, 0, 0, 3); });
    CHECK(program.desk().now - begin == 200);
}

TEST_CASE("while a host hangs a window of another one gets its toolbar with the next tick") {
    Host program;
    constexpr std::uint32_t other = 8;
    program.desk().startProcess("eagle.exe", other);
    program.desk().hang(program.board, minute);
    program.desk().openWindow("Schematic - x.sch - EAGLE", {0, 0, 800, 600}, other);
    program.ticks(1);
    CHECK(program.hosted(EditorKind::schematic) == 1);
}

TEST_CASE("a file dialog over a host that hangs disables nothing there") {
    Host program;
    program.desk().hang(program.board, minute);
    bool asked = false;
    program.desk().onFileDialog = [&] {
        asked = true;
        CHECK(program.desk().window(program.board).enabled);
    };
    program.click(store::dialogKind::fileDialog);
    CHECK(asked);
    CHECK(program.desk().disabledHosts.empty());
}

TEST_SUITE_END();
