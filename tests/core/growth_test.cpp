// Editors that come and go, the setup and the dialogs of buttons, again and again, and ticks without end:
// what is there afterwards is what was there after the first.
//
// KESTREL_GROWTH gives the number of rounds of 20 editors; without it there is one.
#include "core/running.h"
#include "desktop/surfaces.h"
#include "setup/frmSetup.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <cstdlib>
#include <string>

using platform::HWND;
using store::EditorKind;

namespace {

constexpr int editorsInRound = 20;
constexpr int ticksOfEditor = 72;

/// A board that stays, with a button of each kind of dialog, and a calculator in each editor.
struct Lasting : Running {
    Lasting() {
        std::string settings;
        for (const char* list : {"board", "schem"})
            settings += "[" + std::string(list) +
                        "]\r\n1name=A\r\n1path=window fit\r\n1dialog=1\r\n1type=1\r\n1icon=C:\\i.dll,0\r\n"
                        "2name=B\r\n2path=ripup\r\n2dialog=2\r\n2type=1\r\n2icon=C:\\i.dll,0\r\n";
        desk().writeSettings(settings);
        desk().addIcons("C:\\i.dll", 1);
        store::unitCalcActive = 1;
        desk().openWindow("1 Board - stays.brd - EAGLE");
        ticks(1);
    }

    void editorComesAndGoes(bool board) {
        const HWND editor =
            desk().openWindow(board ? "1 Board - x.brd - EAGLE" : "1 Schematic - x.sch - EAGLE");
        ticks(ticksOfEditor);
        desk().closeWindow(editor);
    }

    void click(std::size_t button) {
        REQUIRE(desk().event([&] { toolbar(EditorKind::board, 1).toolbar.clickButton(button); }));
    }

    void round() {
        for (int editor = 0; editor < editorsInRound; ++editor) {
            editorComesAndGoes(editor % 2 == 0);
            if (editor % 2 != 0)
                continue;
            click(0); // cancelled by a user who is not there
            click(1);
            desk().modalScripts.push_back(
                [](forms::Form& form) { dynamic_cast<setup::frmSetup&>(form).btnOk.click(); });
            click(2);
            REQUIRE(desk().modalScripts.empty());
        }
        desk().calls.clear();
    }

    std::size_t openThings() { return desk().windowCount() + desktop::surfaceCount() + desk().timers.size(); }
};

} // namespace

TEST_SUITE_BEGIN("core/growth");

TEST_CASE("editors, setups, dialogs and ticks leave windows, surfaces and timers as after the first round") {
    const char* const wanted = std::getenv("KESTREL_GROWTH"); // NOLINT(concurrency-mt-unsafe)
    const int rounds = wanted == nullptr ? 1 : std::stoi(wanted);
    Lasting program;
    program.round();
    const std::size_t before = program.openThings();
    for (int round = 0; round < rounds; ++round)
        program.round();
    CHECK(program.openThings() == before);
    const std::size_t entries = program.hosted(EditorKind::board) + program.hosted(EditorKind::schematic);
    CHECK(entries == 1 + static_cast<std::size_t>(rounds + 1) * editorsInRound);
}

TEST_SUITE_END();
