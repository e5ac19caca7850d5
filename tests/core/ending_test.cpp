// The ends of the program in the midst of something: a toolbar's file dialog, the splash.
#include "core/frmMenu.h"
#include "desktop/program.h"
#include "toolbars/buttonTag.h"

#include <doctest/doctest.h>

#include <functional>

using desktop::Program;
using platform::HWND;
using store::EditorKind;

namespace {

constexpr const char* request = "C:\\kestrel\\execute.txt";

/// A program with a toolbar in a board, one of whose buttons opens a file dialog.
struct Asking : Program {
    Asking() {
        desk().writeSettings("[toolbar]\r\nautoToolbar=1\r\n");
        desk().startProcess("eagle.exe", eagle);
        REQUIRE(start());
        host = desk().openWindow("Board - x.brd - EAGLE");
        ticks(1);
        REQUIRE(hosted(EditorKind::board) == 1);
    }
    /// Clicks on the button; `meanwhile` happens while the dialog is up.
    void ask(const std::function<void()>& meanwhile) {
        store::ToolButton button;
        button.path = "run";
        button.dialog = store::dialogKind::fileDialog;
        button.type = store::entryType::eagleCommand;
        forms::ToolbarButton clicked;
        clicked.key = "x1";
        clicked.tag = toolbars::buttonTag(button);
        desk().onFileDialog = [this, meanwhile] {
            CHECK_FALSE(desk().window(host).enabled);
            meanwhile();
        };
        desk().event([&] { toolbar(EditorKind::board, 1).Toolbar_ButtonClick(clicked); });
    }

    static constexpr std::uint32_t eagle = 7;
    HWND host = HWND::none;
};

} // namespace

TEST_SUITE_BEGIN("core/ending");

TEST_CASE("every end under a file dialog of a toolbar gives the host back to the user") {
    Asking program;
    desktop::World& desk = program.desk();
    SUBCASE("Exit of the tray's menu") {
        constexpr int leave = 6;
        program.ask([&] { desk.event([&] { core::menuForm().mnuTaskbarG.choose(leave); }); });
    }
    SUBCASE("an error") {
        desk.writeFile(request, "x");
        desk.file(request)->locked = true;
        program.ask([&] { desk.run(1'000); });
        CHECK(desk.messageBoxes.size() == 1);
    }
    SUBCASE("EAGLE's process is gone for some seconds") {
        // Its window belongs to a program that bears another name.
        desk.processes.clear();
        program.ask([&] { desk.run(6'000); });
    }
    SUBCASE("the main form is closed: the installer, or the end of the session") {
        program.ask([&] { desk.event([&] { program.form().closeRequested(); }); });
    }
    CHECK(desk.ended);
    CHECK(desk.window(program.host).enabled);
    CHECK_FALSE(desk.trayIcon.has_value());
    CHECK(desk.typed.empty());
}

TEST_CASE("closed while the splash is up the start goes no further") {
    Program program;
    program.desk().writeFile("C:\\eagle\\eagle.exe", "MZ");
    program.desk().writeSettings("[toolbar]\r\nautoEAGLE=1\r\nEAGLEpath=C:\\eagle\\eagle.exe\r\n");
    program.desk().modalScripts.emplace_back([&](forms::Form&) { program.form().closeRequested(); });
    program.start();
    CHECK(program.desk().ended);
    CHECK(program.desk().started.empty());
    CHECK_FALSE(program.desk().trayIcon.has_value());
}

TEST_SUITE_END();
