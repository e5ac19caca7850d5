// What reaches EAGLE's windows when the setup has saved, with `mend=1` and without.
#include "core/frmMenu.h"
#include "mending.h"
#include "setup/frmSetup.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

using platform::HWND;
using setup::setupForm;
using store::EditorKind;

namespace {

/// Two editors of each kind with toolbars and calculators, all beside each other.
struct Editors : Mending {
    explicit Editors(bool on, const std::string& more = {})
        : Mending(on, "[Unit]\r\nVisible=1\r\n" + more + lists()) {
        for (const char* file : {"a", "b"})
            for (const char* kind : {"Board", "Schematic", "Library"}) {
                hosts.push_back(desk().openWindow("1 " + std::string(kind) + " - " + file + " - EAGLE"));
                // Without the mend a library is known only below as many schematics.
                ticks(1);
            }
    }
    static std::string lists() {
        std::string text;
        for (const char* section : {"board", "schem", "libr"})
            text += "[" + std::string(section) + "]\r\n1name=n\r\n1path=p\r\n1dialog=0\r\n1type=1\r\n";
        return text;
    }
    /// The setup from the tray, and what the user does in it, which has to close it.
    void setup(const std::function<void(setup::frmSetup&)>& doings) {
        desk().modalScripts.push_back([&doings](forms::Form& /*form*/) { doings(setupForm()); });
        REQUIRE(desk().event([] { core::menuForm().mnuTaskbar_Click(4); }));
        REQUIRE(desk().modalScripts.empty());
    }
    /// The same from the toolbar in the first editor of a kind.
    void config(EditorKind kind, const std::function<void(setup::frmSetup&)>& doings) {
        desk().modalScripts.push_back([&doings](forms::Form& /*form*/) { doings(setupForm()); });
        REQUIRE(desk().event([&] {
            forms::Toolbar& bar = toolbar(kind, 1).toolbar;
            bar.clickButton(bar.buttons().size() - 1);
        }));
        REQUIRE(desk().modalScripts.empty());
    }
    std::size_t buttons(EditorKind kind, std::size_t index) {
        return toolbar(kind, index).toolbar.buttons().size();
    }
    int height(EditorKind kind, std::size_t index) {
        const platform::RECT place = desk().window(toolbar(kind, index).window()).rect;
        return place.bottom - place.top;
    }
    calculator::frmMil& calculator(std::size_t index) { return *form().calculators.at(index); }

    std::vector<HWND> hosts;
};

/// Twelve separators and a command more in each list, and OK.
void addAndSave(setup::frmSetup& form) {
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        for (int added = 0; added < 12; ++added)
            form.btnAddSep[page].click();
        form.btnAddEAGLE[page].click();
    }
    form.btnOk.click();
}

} // namespace

TEST_SUITE_BEGIN("core/saveMend");

TEST_CASE("after OK from the tray: off no toolbar is built anew, on each with its height") {
    for (const bool on : offAndOn) {
        CAPTURE(on);
        Editors program(on);
        const int before = program.height(EditorKind::board, 1);
        program.setup(addAndSave);
        for (const EditorKind kind : store::editorKinds)
            for (const std::size_t index : {1U, 2U}) {
                CHECK(program.buttons(kind, index) == (on ? 15 : 2));
                CHECK((program.height(kind, index) > before) == on);
            }
        CHECK_FALSE(program.toolbar(EditorKind::board, 0).loaded());
    }
}

TEST_CASE("after OK from a toolbar: off it alone is built anew, on all, the board's with their height") {
    for (const EditorKind opener : store::editorKinds)
        for (const bool on : offAndOn) {
            CAPTURE(on);
            Editors program(on);
            const int before = program.height(EditorKind::board, 1);
            program.config(opener, addAndSave);
            for (const EditorKind kind : store::editorKinds)
                for (const std::size_t index : {1U, 2U}) {
                    const bool own = kind == opener && index == 1;
                    CHECK(program.buttons(kind, index) == (on || own ? 15 : 2));
                    CHECK((program.height(kind, index) > before) ==
                          (on || (own && kind != EditorKind::board)));
                }
        }
}

TEST_CASE("on, the windows keep their order, whoever opened the setup") {
    for (const EditorKind opener : store::editorKinds) {
        Editors program(true);
        std::vector<HWND>& order = program.desk().order;
        program.desk().raise(program.hosts[1]);
        program.desk().raise(program.hosts[5]);
        const auto editors = [&] {
            std::vector<HWND> found;
            std::ranges::copy_if(order, std::back_inserter(found), [&](HWND window) {
                return std::ranges::find(program.hosts, window) != program.hosts.end();
            });
            return found;
        };
        const std::vector<HWND> before = editors();
        program.config(opener, addAndSave);
        CHECK(editors() == before);
        program.setup(addAndSave);
        CHECK(editors() == before);
    }
}

TEST_CASE("on, a toolbar whose window has gone with its host is left alone") {
    Editors program(true);
    program.config(EditorKind::board, [&](setup::frmSetup& form) {
        program.desk().closeWindow(program.hosts[0]);
        program.desk().closeWindow(program.hosts[2]);
        // The dead host's number comes back as another window.
        program.desk().nextHandle = program.hosts[2];
        program.desk().openWindow("another program");
        addAndSave(form);
    });
    // Their buttons went with the windows, and no save brings them back.
    CHECK(program.buttons(EditorKind::board, 1) == 0);
    CHECK(program.buttons(EditorKind::library, 1) == 0);
    CHECK(program.buttons(EditorKind::board, 2) == 15);
    CHECK(program.buttons(EditorKind::library, 2) == 15);
}

TEST_CASE("on, a save reaches them however the dialog closes, and only then") {
    const auto failedCheck = [](setup::frmSetup& form) {
        form.btnAddEAGLE[0].click();
        form.txtPath[0].edited("{eaglepath}x");
        form.btnOk.click();
        REQUIRE(form.visible());
    };
    using Doings = std::function<void(Editors&, setup::frmSetup&)>;
    const Doings saving[] = {
        [&](Editors&, setup::frmSetup& form) {
            failedCheck(form);
            form.btnCancel.click();
        },
        [&](Editors&, setup::frmSetup& form) {
            failedCheck(form);
            form.closeRequested();
        },
        [&](Editors& program, setup::frmSetup& form) {
            failedCheck(form);
            CHECK(program.buttons(EditorKind::board, 1) == 2);
            form.txtPath[0].edited("x");
            form.btnOk.click();
        },
    };
    for (const Doings& doings : saving) {
        Editors program(true);
        program.setup([&](setup::frmSetup& form) { doings(program, form); });
        CHECK(program.buttons(EditorKind::board, 1) == 3);
        CHECK(program.buttons(EditorKind::board, 2) == 3);
    }
}

TEST_CASE("after Cancel nothing is built anew but the toolbar that opened the setup, off and on") {
    for (const bool on : offAndOn) {
        CAPTURE(on);
        Editors program(on);
        program.setup(addAndSave);
        program.config(EditorKind::schematic, [&](setup::frmSetup& form) {
            program.desk().writeSettings(Editors::lists());
            form.btnCancel.click();
        });
        CHECK(program.buttons(EditorKind::schematic, 1) == 2);
        CHECK(program.buttons(EditorKind::schematic, 2) == (on ? 15 : 2));
        CHECK(program.buttons(EditorKind::board, 1) == (on ? 15 : 2));
    }
}

TEST_CASE("a new calculator: off with mil and mm, on with the units of the settings") {
    for (const bool on : offAndOn) {
        CAPTURE(on);
        Editors program(on, "LeftUnit=Inch\r\nRightUnit=um\r\n");
        CHECK(program.calculator(1).labUnit[0].caption() == (on ? "Inch" : "mil"));
        CHECK(program.calculator(1).labUnit[1].caption() == (on ? "um" : "mm"));
    }
}

TEST_CASE("a standing calculator after a save: off as it was, on with units, formats and a new right field") {
    for (const bool on : offAndOn) {
        CAPTURE(on);
        Editors program(on);
        program.calculator(1).txtSize[0].setText("100");
        program.calculator(1).txtSize[1].setText("2.54");
        program.setup([](setup::frmSetup& form) {
            form.cboUnit[1].setText("Inch");
            form.cboAccur[1].setText("0.##");
            form.btnOk.click();
        });
        CHECK(program.calculator(1).labUnit[0].caption() == "mil");
        CHECK(program.calculator(1).labUnit[1].caption() == (on ? "Inch" : "mm"));
        CHECK(program.calculator(1).txtSize[0].text() == "100");
        CHECK(program.calculator(1).txtSize[1].text() == (on ? "0.1" : "2.54"));
        CHECK(program.calculator(2).txtSize[1].text() == "0");
        CHECK(program.calculator(6).labUnit[1].caption() == (on ? "Inch" : "mm"));
    }
}

TEST_CASE("on, units that were saved before a failed check are shown once the dialog has closed") {
    Editors program(true);
    program.setup([](setup::frmSetup& form) {
        form.cboUnit[0].setText("um");
        form.chkEAGLE.setValue(1);
        form.btnOk.click();
        REQUIRE(form.visible());
        form.btnCancel.click();
    });
    CHECK(store::unitName[0] == "um");
    CHECK(program.calculator(1).labUnit[0].caption() == "um");
}

TEST_CASE("on, a left field that no number can be made of leaves the right one, and the program goes on") {
    Editors program(true);
    program.calculator(1).txtSize[0].setText("1e999");
    program.calculator(1).txtSize[1].setText("7");
    program.calculator(2).txtSize[0].setText("words");
    program.calculator(2).txtSize[1].setText("7");
    program.setup([](setup::frmSetup& form) { form.btnOk.click(); });
    CHECK(program.calculator(1).txtSize[1].text() == "7");
    CHECK(program.calculator(2).txtSize[1].text() == "0");
}

TEST_SUITE_END();
