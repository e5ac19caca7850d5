// Ticks of the tracker: which windows get what.
#include "core/running.h"
#include "desktop/program.h"
#include "store/settings.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <string>

using desktop::Program;
using platform::HWND;
using store::EditorKind;

namespace {

struct Tracked : Running {
    HWND open(const std::string& title, int width = 1024) {
        return desk().openWindow(title, {0, 0, width, 700});
    }
    HWND formOf(EditorKind kind, std::size_t index) { return toolbar(kind, index).window(); }
};

struct WithCalculator : Tracked {
    WithCalculator() { store::unitCalcActive = 1; }
    float calculatorLeft(std::size_t index) { return form().calculators.at(index)->fraMil.left(); }
};

} // namespace

TEST_SUITE_BEGIN("core/tracker");

TEST_CASE("board, schematic and library that are new on one tick each get a toolbar on that tick") {
    Tracked program;
    const HWND library = program.open("Library - x.lbr - EAGLE");
    const HWND schematic = program.open("Schematic - x.sch - EAGLE");
    const HWND board = program.open("Board - x.brd - EAGLE");
    program.desk().calls.clear();
    program.ticks(1);
    REQUIRE(program.hosted(EditorKind::board) == 1);
    REQUIRE(program.hosted(EditorKind::schematic) == 1);
    REQUIRE(program.hosted(EditorKind::library) == 1);
    CHECK(program.toolbar(EditorKind::board, 1).eagHND == board);
    CHECK(program.toolbar(EditorKind::schematic, 1).eagHND == schematic);
    CHECK(program.toolbar(EditorKind::library, 1).eagHND == library);
    // In the order board, schematic, library.
    std::vector<std::string> moves;
    for (const std::string& call : program.desk().calls)
        if (call.starts_with("MoveWindow"))
            moves.push_back(call.substr(11, call.find(' ', 11) - 11));
    const auto number = [](HWND window) { return std::to_string(static_cast<std::uintptr_t>(window)); };
    CHECK(moves == std::vector<std::string>{number(program.formOf(EditorKind::board, 1)),
                                            number(program.formOf(EditorKind::schematic, 1)),
                                            number(program.formOf(EditorKind::library, 1))});
}

TEST_CASE("toolbar and calculator are shown, and to be seen in their host") {
    WithCalculator program;
    program.open("Board - x.brd - EAGLE");
    program.ticks(1);
    // Switching drawing on shows a window, whatever its form has been told.
    CHECK(program.toolbar(EditorKind::board, 1).visible());
    CHECK(program.form().calculators.at(1)->visible());
    CHECK(program.desk().isSeen(program.formOf(EditorKind::board, 1)));
    CHECK(program.desk().isSeen(program.form().calculators.at(1)->fraMil.hWnd()));
}

TEST_CASE("a toolbar stands in its host 25 pixels from the right end and 21 from the top") {
    Tracked program;
    const HWND board = program.open("Board - x.brd - EAGLE", 1024);
    program.ticks(1);
    const desktop::Window& bar = program.desk().window(program.formOf(EditorKind::board, 1));
    CHECK(bar.parent == board);
    CHECK(bar.visible);
    // The form is 128 pixels wide: 120 of the client area and the frame.
    CHECK(bar.rect.left == 1024 - 128 - 25);
    CHECK(bar.rect.top == 21);
    CHECK(bar.rect.right - bar.rect.left == 128);
    CHECK(program.desk().window(board).children.front() == bar.handle);
}

TEST_CASE("the toolbar is moved with its height in twips, and its resize then sets the real one") {
    Tracked program;
    program.open("Board - x.brd - EAGLE", 1024);
    program.desk().calls.clear();
    program.ticks(1);
    const auto& calls = program.desk().calls;
    const auto moved = std::find_if(calls.begin(), calls.end(),
                                    [](const std::string& call) { return call.starts_with("MoveWindow"); });
    REQUIRE(moved != calls.end());
    // Design: 300 twips of client area and 26 pixels of title bar and frame.
    CHECK(moved->ends_with(" 871 21 128 690 1"));
    // The move raises the resize, which runs once more inside itself, and the tracker calls it once.
    CHECK(std::count_if(moved, calls.end(),
                        [](const std::string& call) { return call.starts_with("SetWindowPos"); }) == 3);
    const desktop::Window& bar = program.desk().window(program.formOf(EditorKind::board, 1));
    CHECK(bar.rect.bottom - bar.rect.top == 22 + 26);
}

TEST_CASE("a toolbar does not follow its host and is not touched again once it is known") {
    Tracked program;
    const HWND board = program.open("Board - x.brd - EAGLE", 1024);
    program.ticks(1);
    const platform::RECT before = program.desk().window(program.formOf(EditorKind::board, 1)).rect;
    program.desk().resizeWindow(board, 1200, 800);
    program.desk().calls.clear();
    program.ticks(5);
    CHECK(program.desk().window(program.formOf(EditorKind::board, 1)).rect == before);
    CHECK(program.desk().calls.empty());
    CHECK(program.hosted(EditorKind::board) == 1);
}

TEST_CASE("any program's window whose title holds board - is taken for a board editor") {
    Tracked program;
    program.open("notes about my BOARD - draft");
    program.ticks(1);
    CHECK(program.hosted(EditorKind::board) == 1);
}

TEST_CASE("a title with eagle: in it is refused, and no other window of the kind is tried on that tick") {
    Tracked program;
    const HWND board = program.open("Board - x.brd - EAGLE");
    const HWND refused = program.open("Board - Eagle: read-only");
    program.ticks(3);
    CHECK(program.hosted(EditorKind::board) == 0);
    program.desk().closeWindow(refused);
    program.ticks(1);
    REQUIRE(program.hosted(EditorKind::board) == 1);
    CHECK(program.toolbar(EditorKind::board, 1).eagHND == board);
}

TEST_CASE("a refused window does not keep the other kinds from their toolbars") {
    Tracked program;
    program.open("Schematic - x.sch - EAGLE");
    program.open("Board - EAGLE: x");
    program.ticks(1);
    CHECK(program.hosted(EditorKind::board) == 0);
    CHECK(program.hosted(EditorKind::schematic) == 1);
}

TEST_CASE("a German schematic is seen only while no window holds the English title") {
    Tracked program;
    const HWND german = program.open("Schaltplan - a.sch - EAGLE");
    const HWND english = program.open("Schematic - b.sch - EAGLE");
    program.desk().raise(german);
    program.ticks(2);
    REQUIRE(program.hosted(EditorKind::schematic) == 1);
    CHECK(program.toolbar(EditorKind::schematic, 1).eagHND == english);
    program.desk().closeWindow(english);
    program.ticks(1);
    REQUIRE(program.hosted(EditorKind::schematic) == 2);
    CHECK(program.toolbar(EditorKind::schematic, 2).eagHND == german);
}

TEST_CASE("a German library is seen, a German board is not") {
    Tracked program;
    program.open("Bibliothek - a.lbr - EAGLE");
    program.open("Platine - a.brd - EAGLE");
    program.ticks(1);
    CHECK(program.hosted(EditorKind::library) == 1);
    CHECK(program.hosted(EditorKind::board) == 0);
}

TEST_CASE("a second board gets its toolbar when it comes in front of the first") {
    Tracked program;
    const HWND first = program.open("Board - a.brd - EAGLE");
    program.ticks(1);
    const HWND second = program.open("Board - b.brd - EAGLE");
    program.desk().raise(first);
    program.ticks(3);
    CHECK(program.hosted(EditorKind::board) == 1);
    program.desk().raise(second);
    program.ticks(1);
    CHECK(program.hosted(EditorKind::board) == 2);
}

TEST_CASE("the file of a new window is written under the key of its kind") {
    Tracked program;
    program.open("Library - C:\\l.lbr - EAGLE");
    program.open("Schematic - C:\\s.sch - EAGLE");
    program.open("Board - C:\\b.brd - EAGLE");
    program.ticks(1);
    CHECK(program.desk().settings() ==
          "[Toolbar]\r\nlastBoard=C:\\b.brd\r\nlastSCH=C:\\s.sch\r\nlastLbr=C:\\l.lbr\r\n");
    CHECK(store::getini("toolbar", "lastLBR") == "C:\\l.lbr");
}

TEST_CASE("a title with one separator writes nothing and gets its toolbar all the same") {
    Tracked program;
    program.open("Board - x.brd");
    program.ticks(1);
    CHECK(program.hosted(EditorKind::board) == 1);
    CHECK(program.desk().settings().empty());
}

TEST_CASE("a title without a file leaves the key of the file before as it is") {
    Tracked program;
    program.open("Board - a.brd - EAGLE");
    program.ticks(1);
    program.open("Board - untitled");
    program.ticks(1);
    REQUIRE(program.hosted(EditorKind::board) == 2);
    CHECK(store::getini("toolbar", "lastBoard") == "a.brd");
    CHECK(program.form().lastOpened[0] == "a.brd");
}

TEST_CASE("a name is written again only when it differs from the last one of its kind") {
    Tracked program;
    program.open("Board - a.brd - EAGLE");
    program.ticks(1);
    program.desk().writeSettings("");
    program.open("Board - a.brd - EAGLE second view");
    program.ticks(1);
    REQUIRE(program.hosted(EditorKind::board) == 2);
    CHECK(program.desk().settings().empty());
    program.open("Board - b.brd - EAGLE");
    program.ticks(1);
    CHECK(store::getini("toolbar", "lastBoard") == "b.brd");
}

TEST_CASE("a library name loses its bracket part and the character before it, other names keep theirs") {
    Tracked program;
    program.open("Library - C:\\l.lbr (package) - EAGLE");
    program.open("Board - C:\\b.brd (copy) - EAGLE");
    program.ticks(1);
    CHECK(store::getini("toolbar", "lastLbr") == "C:\\l.lbr");
    CHECK(store::getini("toolbar", "lastBoard") == "C:\\b.brd (copy)");
    CHECK(program.form().lastOpened[2] == "C:\\l.lbr");
}

TEST_CASE("only the last bracket of a library name counts") {
    Tracked program;
    program.open("Library - a (b) c (d) - EAGLE");
    program.ticks(1);
    CHECK(program.form().lastOpened[2] == "a (b) c");
}

TEST_CASE("a library name with the bracket as second character becomes empty and is stored empty") {
    Tracked program;
    program.desk().writeSettings("[Toolbar]\r\nlastLbr=old\r\n");
    program.open("Library - x(package) - EAGLE");
    program.ticks(1);
    CHECK(program.desk().settings() == "[Toolbar]\r\nlastLbr=\r\n");
    CHECK(program.form().lastOpened[2].empty());
    CHECK(program.hosted(EditorKind::library) == 1);
}

TEST_CASE("a library name that begins with a bracket ends the program with the runtime's message") {
    Tracked program;
    program.open("Library - (package) - EAGLE");
    program.ticks(1);
    CHECK(program.desk().ended);
    CHECK(program.desk().messageBoxes.at(0).text ==
          "Run-time error '5':\r\n\r\nInvalid procedure call or argument");
    CHECK_FALSE(program.desk().trayIcon.has_value());
}

TEST_CASE("a closed host takes its toolbar's window along and leaves the entry in the list") {
    Tracked program;
    const HWND board = program.open("Board - a.brd - EAGLE");
    program.ticks(1);
    program.desk().closeWindow(board);
    program.ticks(3);
    REQUIRE(program.hosted(EditorKind::board) == 1);
    CHECK(program.toolbar(EditorKind::board, 1).eagHND == board);
    CHECK(program.formOf(EditorKind::board, 1) == HWND::none);
    program.open("Board - b.brd - EAGLE");
    program.ticks(1);
    CHECK(program.hosted(EditorKind::board) == 2);
}

TEST_CASE("a new window with the handle of a closed one counts as known") {
    Tracked program;
    const HWND board = program.open("Board - a.brd - EAGLE");
    program.ticks(1);
    program.desk().closeWindow(board);
    program.desk().nextHandle = board;
    program.open("Board - b.brd - EAGLE");
    program.ticks(2);
    CHECK(program.hosted(EditorKind::board) == 1);
}

TEST_CASE("with no schematic toolbar every tick finds the library new but writes its name once") {
    Tracked program;
    store::unitCalcActive = 1;
    program.open("Library - C:\\l.lbr - EAGLE");
    program.ticks(1);
    program.desk().writeSettings("");
    program.ticks(3);
    CHECK(program.hosted(EditorKind::library) == 4);
    CHECK(program.form().calculators.size() == 5);
    CHECK(program.desk().settings().empty());
}

TEST_CASE("a library with a bracket part is written again for each toolbar, as the stored name differs") {
    Tracked program;
    program.open("Library - C:\\l.lbr (pac) - EAGLE");
    program.ticks(1);
    program.desk().writeSettings("");
    program.ticks(1);
    CHECK(store::getini("toolbar", "lastLbr") == "C:\\l.lbr");
}

TEST_CASE("a library entry within the schematic list's bound is known, one beyond it is new") {
    Tracked program;
    const HWND schematic = program.open("Schematic - s.sch - EAGLE");
    const HWND first = program.open("Library - a.lbr - EAGLE");
    program.ticks(3);
    REQUIRE(program.hosted(EditorKind::library) == 1);
    const HWND second = program.open("Library - b.lbr - EAGLE");
    program.ticks(3);
    CHECK(program.hosted(EditorKind::library) == 4);
    program.desk().raise(first);
    program.ticks(3);
    CHECK(program.hosted(EditorKind::library) == 4);
    program.desk().closeWindow(schematic);
    program.desk().raise(second);
    program.ticks(1);
    CHECK(program.hosted(EditorKind::library) == 5);
}

TEST_CASE("the library scan may run beyond the end of its own list without a match") {
    Tracked program;
    for (int count = 0; count < 5; ++count) {
        program.open("Schematic - " + std::to_string(count) + " - EAGLE");
        program.ticks(1);
    }
    program.open("Library - a.lbr - EAGLE");
    program.ticks(4);
    CHECK(program.hosted(EditorKind::schematic) == 5);
    CHECK(program.hosted(EditorKind::library) == 1);
}

TEST_CASE("with the calculator on a new window gets one, placed by the host's width") {
    WithCalculator program;
    const HWND board = program.open("Board - a.brd - EAGLE", 1024);
    program.ticks(1);
    REQUIRE(program.form().calculators.size() == 2);
    CHECK(program.toolbar(EditorKind::board, 1).milIndex == 1);
    calculator::frmMil& calculator = *program.form().calculators[1];
    CHECK(program.desk().window(calculator.fraMil.hWnd()).parent == board);
    CHECK(program.desk().window(calculator.window()).parent == HWND::none);
    CHECK(calculator.fraMil.left() == 12360);
    CHECK(calculator.fraMil.top() == 0);
    CHECK(program.desk().window(calculator.fraMil.hWnd()).visible);
    CHECK(program.desk().window(calculator.fraMil.hWnd()).rect.left == 824);
}

TEST_CASE("the calculator follows the width of its host down to 700 pixels, and stays there") {
    WithCalculator program;
    const HWND board = program.open("Board - a.brd - EAGLE", 1024);
    program.ticks(1);
    const auto leftAt = [&](int width) {
        program.desk().resizeWindow(board, width, 700);
        program.ticks(1);
        return program.calculatorLeft(1);
    };
    CHECK(leftAt(1300) == 16500);
    CHECK(leftAt(701) == 7515);
    CHECK(leftAt(700) == 7500);
    CHECK(leftAt(600) == 7500);
}

TEST_CASE("only the frontmost editor of a kind has its calculator placed") {
    WithCalculator program;
    const HWND first = program.open("Board - a.brd - EAGLE", 1024);
    program.ticks(1);
    program.open("Board - b.brd - EAGLE", 1024);
    program.ticks(1);
    program.desk().resizeWindow(first, 1300, 700);
    program.ticks(2);
    CHECK(program.calculatorLeft(1) == 12360);
    program.desk().raise(first);
    program.ticks(1);
    CHECK(program.calculatorLeft(1) == 16500);
}

TEST_CASE("with the calculator off there is none, and nothing is placed") {
    Tracked program;
    program.open("Board - a.brd - EAGLE");
    program.ticks(3);
    CHECK(program.form().calculators.size() == 1);
    CHECK(program.toolbar(EditorKind::board, 1).milIndex == 0);
}

TEST_CASE("a calculator that is switched on later comes with the next new window, without a restart") {
    Tracked program;
    program.open("Board - a.brd - EAGLE");
    program.ticks(1);
    store::unitCalcActive = 1;
    program.open("Board - b.brd - EAGLE");
    program.ticks(1);
    CHECK(program.form().calculators.size() == 2);
    CHECK(program.toolbar(EditorKind::board, 2).milIndex == 1);
}

TEST_CASE("a calculator outlives the close of its host") {
    WithCalculator program;
    const HWND board = program.open("Board - a.brd - EAGLE");
    program.ticks(1);
    program.desk().closeWindow(board);
    program.ticks(1);
    CHECK(program.form().calculators[1]->fraMil.hWnd() == HWND::none);
    program.open("Board - b.brd - EAGLE");
    program.ticks(2);
    CHECK(program.form().calculators.size() == 3);
}

TEST_CASE("300 editor windows all get their toolbar once they have been in front") {
    WithCalculator program;
    for (int count = 0; count < 300; ++count) {
        program.open("Board - " + std::to_string(count) + ".brd - EAGLE");
        program.ticks(1);
    }
    CHECK(program.hosted(EditorKind::board) == 300);
    CHECK(program.form().calculators.size() == 301);
    CHECK(program.toolbar(EditorKind::board, 300).milIndex == 300);
}

TEST_CASE("titles of 10,000 characters and with control characters get a toolbar and no trouble") {
    Tracked program;
    program.open("Board - " + std::string(10'000, 'x') + " - EAGLE");
    program.ticks(1);
    program.open(std::string("Schematic - \x01\x02\r\n\x7F - EAGLE"));
    program.ticks(1);
    CHECK(program.hosted(EditorKind::board) == 1);
    CHECK(program.hosted(EditorKind::schematic) == 1);
    CHECK(program.form().lastOpened[0].empty());
}

TEST_SUITE_END();
