// What is left of editors that have been closed, and what happens when the system has no room for more
// windows, icons or pictures.
#include "core/running.h"
#include "desktop/surfaces.h"
#include "store/mends.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <string>

using desktop::Creation;
using platform::HWND;
using store::EditorKind;

namespace {

constexpr const char* titles[] = {"1 Board - x.brd - EAGLE", "1 Schematic - x.sch - EAGLE",
                                  "Library - x.lbr - EAGLE"};

/// Two buttons with an icon and "Config" in each toolbar, and a calculator in each editor.
struct Busy : Running {
    Busy() {
        desk().addIcons("C:\\icons.dll", 2);
        std::string settings;
        for (const char* list : {"board", "schem", "libr"})
            settings +=
                "[" + std::string(list) +
                "]\r\n1name=A\r\n1path=window fit\r\n1dialog=0\r\n1type=1\r\n1icon=C:\\icons.dll,0\r\n"
                "2name=B\r\n2path=ripup\r\n2dialog=0\r\n2type=1\r\n2icon=C:\\icons.dll,1\r\n";
        desk().writeSettings(settings);
        store::unitCalcActive = 1;
    }

    HWND open(EditorKind kind) {
        const HWND editor = desk().openWindow(titles[static_cast<std::size_t>(kind)]);
        ticks(1);
        return editor;
    }

    std::size_t openThings() { return desk().windowCount() + desktop::surfaceCount(); }
    void click(toolbars::frmToolbar& toolbar, std::size_t button) {
        REQUIRE(desk().event([&] { toolbar.toolbar.clickButton(button); }));
    }
};

} // namespace

TEST_SUITE_BEGIN("core/limits");

TEST_CASE("a closed editor leaves its entries and nothing that was made for its windows") {
    for (const EditorKind kind : store::editorKinds) {
        Busy program;
        program.open(EditorKind::schematic); // so that the library finds its own entry
        const std::size_t before = program.openThings();
        const HWND editor = program.open(kind);
        const std::size_t entry = program.hosted(kind);
        toolbars::frmToolbar& toolbar = program.toolbar(kind, entry);
        REQUIRE(toolbar.toolbar.buttons().size() == 3);
        calculator::frmMil& calculator = *program.form().calculators.back();
        REQUIRE(calculator.fraMil.hWnd() != HWND::none);
        SUBCASE("that is closed") {
            program.desk().closeWindow(editor);
        }
        SUBCASE("that dies with its program") {
            program.desk().window(editor).process = 77;
            program.desk().killProcess(77);
        }
        CHECK(program.openThings() == before);
        CHECK(toolbar.window() == HWND::none);
        CHECK(toolbar.toolbar.buttons().empty());
        CHECK(toolbar.ImageList1.count() == 0);
        CHECK(calculator.window() == HWND::none);
        program.ticks(3);
        CHECK(program.hosted(kind) == entry);
        CHECK(toolbar.eagHND == editor);
        CHECK(program.openThings() == before);
    }
}

TEST_CASE("a toolbar that is built anew without its window makes nothing, and fails as any other") {
    Busy program;
    const HWND editor = program.open(EditorKind::schematic);
    toolbars::frmToolbar& toolbar = program.toolbar(EditorKind::schematic, 1);
    program.desk().closeWindow(editor);
    const std::size_t before = program.openThings();
    toolbar.loadLists();
    toolbar.loadVarBar();
    CHECK(program.openThings() == before);
    CHECK(toolbar.toolbar.buttons().empty());
    CHECK(toolbar.toolbar.findButton("Config") == nullptr);
    CHECK(toolbar.ImageList1.count() == 0);
    CHECK_NOTHROW(toolbar.toolbar.addButton("Config", "", forms::ButtonStyle::standard, 0)); // keys go, too
    CHECK_THROWS_WITH_AS(toolbar.toolbar.addButton("Config", "", forms::ButtonStyle::standard, 0),
                         "Key is not unique in collection", runtime::RuntimeError);
    store::ButtonList& list = *store::listOf(EditorKind::schematic).buttons;
    list.redim(11); // two rows with the key "a1"
    for (std::int32_t row = 1; row <= list.upperBound(); ++row) {
        list[row].live = 1;
        list[row].name = row == 1 ? "a1" : "a";
    }
    CHECK_THROWS_WITH_AS(toolbar.loadVarBar(), "Key is not unique in collection", runtime::RuntimeError);
    store::mendsOn = true; // the second row gets a key of its own
    CHECK_NOTHROW(toolbar.loadVarBar());
    CHECK(program.openThings() == before);
    CHECK(toolbar.toolbar.buttons().empty());
    CHECK(toolbar.ImageList1.count() == 0);
}

TEST_CASE("editors that come and go leave no more than their entries") {
    Busy program;
    const auto comeAndGo = [&program](EditorKind kind) {
        const HWND editor = program.open(kind);
        program.ticks(1);
        program.desk().closeWindow(editor);
    };
    comeAndGo(EditorKind::board);
    const std::size_t before = program.openThings();
    for (int round = 0; round < 200; ++round)
        comeAndGo(round % 2 == 0 ? EditorKind::board : EditorKind::schematic);
    CHECK(program.openThings() == before);
    CHECK(program.hosted(EditorKind::board) + program.hosted(EditorKind::schematic) == 201);
}

TEST_CASE("what the system refuses to make is done without, and all that exists works on") {
    for (const Creation kind : {Creation::window, Creation::icon, Creation::picture})
        for (int left = 0; left < 12; ++left) {
            CAPTURE(left);
            Busy program;
            const HWND first = program.open(EditorKind::board);
            program.desk().room[kind] = left;
            HWND editors[] = {HWND::none, HWND::none};
            for (const EditorKind refused : {EditorKind::board, EditorKind::schematic}) {
                HWND& editor = editors[static_cast<std::size_t>(refused)];
                editor = program.open(refused);
                const std::size_t entry = program.hosted(refused);
                CHECK(program.toolbar(refused, entry).eagHND == editor);
                program.ticks(10);
                CHECK(program.hosted(refused) == entry); // its host counts as known
                // A toolbar and a calculator, or what of them there was room for.
                CHECK(program.desk().window(editor).children.size() <= 2);
                const calculator::frmMil& calculator = *program.form().calculators.back();
                CHECK(calculator.loaded());
                CHECK(calculator.windowsMade());
                const bool made = program.toolbar(refused, entry).hWnd() != HWND::none;
                CHECK(program.toolbar(refused, entry).toolbar.buttons().size() == (made ? 3 : 0));
                CHECK(program.toolbar(refused, entry).ImageList1.count() == (made ? 4 : 0));
            }
            REQUIRE_FALSE(program.desk().ended);
            CHECK(program.desk().messageBoxes.empty());
            CHECK(program.desk().window(first).children.size() == 2);
            program.desk().raise(first);
            program.click(program.toolbar(EditorKind::board, 1), 0);
            REQUIRE(program.desk().typed.size() == 1);
            // The setup has no window, and closes by itself.
            if (kind == Creation::window && left == 0) {
                program.click(program.toolbar(EditorKind::board, 1), 2);
                CHECK(program.toolbar(EditorKind::board, 1).toolbar.buttons().size() == 3);
            }
            program.desk().room.clear();
            program.desk().modalScripts.push_back([](forms::Form& setup) { setup.unload(); });
            program.click(program.toolbar(EditorKind::board, 1), 2);
            CHECK(program.desk().modalScripts.empty());
            const HWND later = program.open(EditorKind::board);
            CHECK(program.desk().window(later).children.size() == 2);
        }
}

TEST_CASE(
    "the library scan, which finds its window new with each tick, asks once a second while it is refused") {
    Busy program;
    const HWND editor = program.desk().openWindow(titles[2]);
    SUBCASE("since EAGLE runs as administrator") {
        program.desk().window(editor).elevated = true;
    }
    SUBCASE("since there is no room for windows") {
        program.desk().room[Creation::window] = 0;
    }
    program.desk().run(10'000);
    CHECK(program.hosted(EditorKind::library) >= 10);
    CHECK(program.hosted(EditorKind::library) <= 14);
    program.desk().window(editor).elevated = false;
    program.desk().room.clear();
    program.desk().run(1000);
    CHECK(program.desk().window(editor).children.size() >= 2);
    const std::size_t before = program.hosted(EditorKind::library);
    program.desk().run(1000);
    CHECK(program.hosted(EditorKind::library) == before + 5);
}

TEST_SUITE_END();
