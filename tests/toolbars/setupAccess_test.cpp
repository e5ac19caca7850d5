// The way from a toolbar's "Config" button into the setup dialog and back.
#include "core/frmMenu.h"
#include "desktop/program.h"
#include "setup/frmSetup.h"

#include <doctest/doctest.h>

#include <functional>
#include <string>

using desktop::Program;
using platform::HWND;
using setup::setupForm;
using store::EditorKind;

namespace {

const char* titleOf(EditorKind kind) {
    static const char* const titles[] = {"Board - x.brd - EAGLE", "Schematic - x.sch - EAGLE",
                                         "Library - x.lbr - EAGLE"};
    return titles[static_cast<int>(kind)];
}

std::string section(const std::string& name, const std::string& title) {
    return "[" + name + "]\r\n1name=" + title + "\r\n1path=p\r\n1dialog=0\r\n1type=1\r\n";
}

/// A toolbar in an editor window of one kind, each list with one button.
struct Host : Program {
    explicit Host(EditorKind editorKind) : kind(editorKind) {
        desk().startProcess("eagle.exe");
        desk().writeSettings(section("board", "b") + section("schem", "s") + section("libr", "l"));
        REQUIRE(start());
        host = desk().openWindow(titleOf(kind));
        ticks(1);
    }
    /// A click on "Config"; the user's doings in the dialog, which have to close it.
    void config(const std::function<void(setup::frmSetup&)>& doings) {
        desk().modalScripts.push_back([&doings](forms::Form& /*form*/) { doings(setupForm()); });
        REQUIRE(desk().event([&] {
            forms::Toolbar& bar = toolbar(kind, 1).toolbar;
            bar.clickButton(bar.buttons().size() - 1);
        }));
        REQUIRE(desk().modalScripts.empty());
    }
    std::size_t buttons(std::size_t index = 1) { return toolbar(kind, index).toolbar.buttons().size(); }
    std::string title(std::size_t button) { return toolbar(kind, 1).toolbar.buttons()[button].description; }

    EditorKind kind;
    HWND host;
};

void cancel(setup::frmSetup& form) {
    form.btnCancel.click();
}

} // namespace

TEST_SUITE_BEGIN("toolbars/setupAccess");

TEST_CASE("Config opens the setup on the page of the toolbar's own list, with all three lists") {
    for (const EditorKind kind : store::editorKinds) {
        Host program(kind);
        program.config([&](setup::frmSetup& form) {
            CHECK(form.TabStrip1.tab() == static_cast<int>(kind) + 1);
            CHECK(form.lstApps[0].items() == std::vector<std::string>{"b"});
            CHECK(form.lstApps[1].items() == std::vector<std::string>{"s"});
            CHECK(form.lstApps[2].items() == std::vector<std::string>{"l"});
            form.btnCancel.click();
        });
    }
}

TEST_CASE("after OK the toolbar that opened the setup shows the new list, others keep their buttons") {
    for (const EditorKind kind : store::editorKinds) {
        Host program(kind);
        program.desk().openWindow(titleOf(kind));
        program.ticks(1);
        REQUIRE(program.hosted(kind) == 2);
        const auto page = static_cast<std::size_t>(kind);
        program.config([&](setup::frmSetup& form) {
            form.btnAddEAGLE[page].click();
            form.txtTitle[page].edited("new");
            form.btnOk.click();
        });
        REQUIRE(program.buttons() == 3);
        CHECK(program.title(1) == "new");
        CHECK(program.buttons(2) == 2);
    }
}

TEST_CASE(
    "an opening from the tray rebuilds no toolbar, not even after OK; the next one made has the new list") {
    for (const EditorKind kind : store::editorKinds) {
        Host program(kind);
        const auto page = static_cast<std::size_t>(kind);
        program.desk().modalScripts.push_back([page](forms::Form& /*form*/) {
            setupForm().btnAddEAGLE[page].click();
            setupForm().txtTitle[page].edited("new");
            setupForm().btnOk.click();
        });
        REQUIRE(program.desk().event([] { core::menuForm().mnuTaskbar_Click(4); }));
        CHECK(program.buttons() == 2);
        program.desk().openWindow(titleOf(kind));
        program.ticks(1);
        CHECK(program.buttons(program.hosted(kind)) == 3);
    }
}

TEST_CASE("after Config the board toolbar keeps its height, the other two get that of their new rows") {
    for (const EditorKind kind : store::editorKinds) {
        Host program(kind);
        const HWND form = program.toolbar(kind, 1).window();
        const auto height = [&] {
            const platform::RECT place = program.desk().window(form).rect;
            return place.bottom - place.top;
        };
        const int before = height();
        program.config([&](setup::frmSetup& setup) {
            for (int added = 0; added < 12; ++added)
                setup.btnAddSep[static_cast<std::size_t>(kind)].click();
            setup.btnOk.click();
        });
        CHECK((height() > before) == (kind != EditorKind::board));
    }
}

TEST_CASE("after Cancel the toolbar reloads and rebuilds all the same, from the settings as they are") {
    Host program(EditorKind::schematic);
    program.config([&](setup::frmSetup& form) {
        form.btnAddEAGLE[1].click();
        program.desk().writeSettings(section("schem", "by hand"));
        form.btnCancel.click();
    });
    REQUIRE(program.buttons() == 2);
    CHECK(program.title(0) == "by hand");
}

TEST_CASE("closing the setup by its title bar comes back to the toolbar like Cancel") {
    Host program(EditorKind::library);
    program.config([&](setup::frmSetup& form) {
        form.btnRemove[2].click();
        form.closeRequested();
    });
    CHECK(program.buttons() == 2);
}

TEST_CASE("the tracker goes on behind the setup that a toolbar has opened") {
    Host program(EditorKind::board);
    program.config([&](setup::frmSetup& form) {
        CHECK(program.form().Timer2.enabled());
        program.desk().openWindow("Schematic - y.sch - EAGLE");
        program.ticks(1);
        CHECK(program.hosted(EditorKind::schematic) == 1);
        form.btnCancel.click();
    });
}

TEST_CASE("a toolbar whose host is closed while its setup is up survives it") {
    for (const EditorKind kind : store::editorKinds) {
        Host program(kind);
        program.config([&](setup::frmSetup& form) {
            program.desk().closeWindow(program.host);
            program.ticks(2);
            form.btnOk.click();
        });
        // What is built anew without a window is kept by nobody.
        CHECK(program.buttons() == 0);
        program.ticks(2);
        CHECK(program.hosted(kind) >= 1);
    }
}

TEST_CASE("the setup is opened again and again, by any toolbar") {
    Host program(EditorKind::board);
    for (int round = 0; round < 5; ++round)
        program.config([&](setup::frmSetup& form) {
            CHECK(form.lstApps[0].listCount() == round + 1);
            form.btnAddSep[0].click();
            form.btnOk.click();
        });
    CHECK(program.buttons() == 7);
    program.config(cancel);
    CHECK(program.buttons() == 7);
}

TEST_CASE("a list emptied in the setup leaves the Config button alone") {
    Host program(EditorKind::board);
    program.config([&](setup::frmSetup& form) {
        form.lstApps[0].selected(0);
        form.btnRemove[0].click();
        form.btnOk.click();
    });
    REQUIRE(program.buttons() == 1);
    CHECK(program.toolbar(EditorKind::board, 1).toolbar.buttons()[0].key == "Config");
}

TEST_SUITE_END();
