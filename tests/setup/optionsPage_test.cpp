// The page of global options: filled from the settings, the language at once, EAGLE's path, the help.
#include "setup/dialog.h"

#include "core/frmMenu.h"
#include "store/textCatalogue.h"

#include <functional>

using setup::Dialog;
using setup::namedList;
using setup::Names;

namespace {

std::string toolbarSetting(const std::string& line) {
    return "[toolbar]\r\n" + line + "\r\n";
}

/// What `ask` brings up over the setup finds that enabled and disables it by itself; afterwards the setup is
/// in front, and not the other program. `onDialog` is what the desktop calls while the dialog is up.
void checkOwner(Dialog& dialog, std::function<void()>& onDialog,
                const std::function<void(setup::frmSetup&)>& ask) {
    dialog.desk().openWindow("another program");
    bool asked = false;
    dialog.desk().modalScripts.emplace_back([&](forms::Form& form) {
        dialog.desk().foreground = form.window();
        onDialog = [&] {
            asked = true;
            CHECK_FALSE(dialog.desk().window(form.window()).enabled);
        };
        ask(dialog.form());
        CHECK(dialog.desk().window(form.window()).enabled);
        CHECK(dialog.desk().foreground == form.window());
        form.unload();
    });
    dialog.act([] { setup::openSetup(0); });
    CHECK(asked);
    CHECK(dialog.desk().foundDisabled.empty());
}

} // namespace

TEST_SUITE_BEGIN("setup/optionsPage");

TEST_CASE("each flag of the settings shows in its check box, any number but 0 being on") {
    for (const auto& [value, on] :
         {std::pair{"1", 1}, std::pair{"0", 0}, std::pair{"2", 1}, std::pair{"-1", 1}, std::pair{"abc", 0},
          std::pair{"", 0}, std::pair{" 1x", 1}}) {
        const std::string end = std::string(value) + "\r\n";
        Dialog dialog("[toolbar]\r\nautoEAGLE=" + end);
        dialog.open(0);
        CHECK(dialog.form().chkEAGLE.value() == on);
        CHECK(dialog.form().chkClose.value() == 0);
        CHECK(dialog.form().chkOneInst.value() == 0);
        Dialog close("[toolbar]\r\nautoToolbar=" + end);
        close.open(0);
        CHECK(close.form().chkClose.value() == on);
        CHECK(close.form().chkEAGLE.value() == 0);
        Dialog one("[toolbar]\r\noneEAGLE=" + end);
        one.open(0);
        CHECK(one.form().chkOneInst.value() == on);
        CHECK(one.form().chkClose.value() == 0);
    }
}

TEST_CASE("winEAGLE 5 sets board and library and not schematic; each bit has its box") {
    for (int value = 0; value < 8; ++value) {
        Dialog dialog(toolbarSetting("winEAGLE=" + std::to_string(value)));
        dialog.open(0);
        CHECK(dialog.form().chkLastBRD.value() == (value & 1));
        CHECK(dialog.form().chkLastSCH.value() == (value >> 1 & 1));
        CHECK(dialog.form().chkLastLBR.value() == (value >> 2 & 1));
    }
    Dialog others(toolbarSetting("winEAGLE=-3"));
    others.open(0);
    CHECK(others.form().chkLastBRD.value() == 1);
    CHECK(others.form().chkLastSCH.value() == 0);
    CHECK(others.form().chkLastLBR.value() == 1);
}

TEST_CASE("the calculator's check box shows what the program runs with, not the file") {
    Dialog dialog("[Unit]\r\nVisible=1\r\n");
    CHECK(store::unitCalcActive == 1);
    store::unitCalcActive = 0;
    dialog.open(0);
    CHECK(dialog.form().chkUnitCalc.value() == 0);
    Dialog other("[Unit]\r\nVisible=0\r\n");
    store::unitCalcActive = -1;
    other.open(0);
    CHECK(other.form().chkUnitCalc.value() == 1);
}

TEST_CASE("the lists offer the units, the accuracies and the languages") {
    Dialog dialog;
    dialog.open(0);
    for (const forms::ComboBox& list : dialog.form().cboUnit)
        CHECK(list.items() == Names{"mil", "Inch", "um", "mm"});
    for (const forms::ComboBox& list : dialog.form().cboAccur)
        CHECK(list.items() ==
              Names{"@", "0.#", "0.##", "0.###", "0.####", "0.#####", "0.######", "0.#######"});
    CHECK(dialog.form().cboLanguage.items() == Names{"english", "deutsch"});
}

TEST_CASE("units and accuracies come from what the program runs with, not from the file") {
    Dialog dialog("[Unit]\r\nLeftUnit=Inch\r\nRightUnit=um\r\nLeftAccuracy=0.#\r\nRightAccuracy=0.###\r\n");
    store::unitName = {"mm", "mil"};
    store::unitAccuracy = {"0.##", "@"};
    dialog.open(0);
    CHECK(dialog.form().cboUnit[0].text() == "mm");
    CHECK(dialog.form().cboUnit[1].text() == "mil");
    CHECK(dialog.form().cboAccur[0].text() == "0.##");
    CHECK(dialog.form().cboAccur[1].text() == "@");
}

TEST_CASE("a unit or an accuracy that no list has cannot be shown") {
    Dialog dialog("[Unit]\r\nLeftUnit=cm\r\nRightAccuracy=0.0\r\n");
    dialog.open(0);
    CHECK(dialog.form().cboUnit[0].listIndex() == -1);
    CHECK(dialog.form().cboUnit[1].text() == "mm");
    CHECK(dialog.form().cboAccur[0].text() == "@");
    CHECK(dialog.form().cboAccur[1].listIndex() == -1);
}

TEST_CASE("EAGLE's path shows as it is stored") {
    Dialog dialog(toolbarSetting("EAGLEpath=C:\\EAGLE\\bin\\eagle.exe"));
    dialog.open(0);
    CHECK(dialog.form().txtEAGLE.text() == "C:\\EAGLE\\bin\\eagle.exe");
}

TEST_CASE("the first load selects the language, which writes it once more and loads the texts twice") {
    for (const auto& [offset, row] : {std::pair{0, 1}, std::pair{10000, 0}}) {
        Dialog dialog("[global]\r\nlanguage=" + std::to_string(offset) + "\r\n");
        dialog.desk().writeSettings("[toolbar]\r\nautoEAGLE=0\r\n");
        dialog.desk().settingsReads = 0;
        dialog.open(0);
        CHECK(dialog.form().cboLanguage.listIndex() == row);
        CHECK(store::languageOffset == offset);
        CHECK(store::getini("global", "language") == std::to_string(offset));
        // Eight settings are read by each of the two runs, and one just above.
        CHECK(dialog.desk().settingsReads == 2 * 8 + 1);
        dialog.desk().settingsReads = 0;
        dialog.act([&] { dialog.form().loadResources(); });
        CHECK(dialog.desk().settingsReads == 8);
    }
}

TEST_CASE("a chosen language takes effect at once, in the texts, the settings and the next menu") {
    Dialog dialog;
    dialog.open(0);
    dialog.act([&] { dialog.form().cboLanguage.selected(0); });
    CHECK(store::languageOffset == 10000);
    CHECK(store::getini("global", "language") == "10000");
    CHECK(dialog.form().btnHelp.caption() == store::LoadResString(11014));
    CHECK(dialog.form().caption() == "Configuration ");
    CHECK(core::menuForm().mnuTaskbarG.items[4].caption == store::LoadResString(11103));
    dialog.act([&] { dialog.form().cboLanguage.selected(1); });
    CHECK(store::languageOffset == 0);
    CHECK(store::getini("global", "language") == "0");
    CHECK(dialog.form().btnHelp.caption() == "&Hilfe");
    CHECK(core::menuForm().mnuTaskbarG.items[4].caption == store::LoadResString(1103));
}

TEST_CASE("a language survives Cancel, in the settings and for the next opening") {
    Dialog dialog;
    dialog.open(0);
    dialog.act([&] { dialog.form().cboLanguage.selected(0); });
    dialog.click(dialog.form().btnCancel);
    CHECK(store::getini("global", "language") == "10000");
    dialog.open(0);
    CHECK(dialog.form().caption() == "Configuration ");
    CHECK(dialog.form().cboLanguage.text() == "english");
}

TEST_CASE("edits of the lists survive a language change, the selection and the options do not") {
    Dialog dialog;
    store::boardButtons = namedList({"a", "b"});
    dialog.open(1);
    dialog.select(0, 0);
    dialog.enter(dialog.form().txtTitle[0], "edited");
    dialog.click(dialog.form().btnAddSep[0]);
    dialog.select(0, 1);
    dialog.enter(dialog.form().txtPath[0], "edited too");
    dialog.act([&] { dialog.form().chkClose.click(); });
    dialog.enter(dialog.form().txtEAGLE, "C:\\x");
    dialog.act([&] { dialog.form().cboLanguage.selected(0); });
    CHECK(dialog.rows(0) == Names{"edited", "b", std::string(34, '-')});
    CHECK(dialog.record(0, 2).path == "edited too");
    CHECK(dialog.selected(0) == -1);
    CHECK(dialog.form().TabStrip1.tab() == 1);
    CHECK(dialog.form().chkClose.value() == 0);
    CHECK(dialog.form().txtEAGLE.text().empty());
    CHECK(store::boardButtons == namedList({"a", "b"}));
}

TEST_CASE("the language list does nothing while an add routine fills the fields") {
    Dialog dialog;
    dialog.open(0);
    dialog.form().noUpdate = -1;
    dialog.act([&] { dialog.form().cboLanguage.selected(0); });
    CHECK(store::languageOffset == 0);
    CHECK(dialog.form().btnHelp.caption() == "&Hilfe");
}

TEST_CASE("nothing on the page but the language reaches the program before OK") {
    Dialog dialog;
    dialog.open(0);
    const std::string before = dialog.desk().settings();
    dialog.act([&] {
        dialog.form().chkUnitCalc.click();
        dialog.form().cboUnit[0].selected(1);
        dialog.form().cboAccur[1].selected(3);
        dialog.form().chkLastSCH.click();
    });
    dialog.enter(dialog.form().txtEAGLE, "nonsense");
    CHECK(dialog.desk().settings() == before);
    CHECK(store::unitCalcActive == 0);
    CHECK(store::unitName[0] == "mil");
    CHECK(store::unitAccuracy[1] == "@");
    CHECK(dialog.desk().messageBoxes.empty());
}

TEST_CASE("browsing for EAGLE puts the chosen file into the field, Cancel changes nothing") {
    for (const int offset : {0, 10000}) {
        Dialog dialog(toolbarSetting("EAGLEpath=C:\\old\\eagle.exe"));
        store::languageOffset = offset;
        dialog.open(0);
        store::currentRoutine.clear();
        dialog.desk().fileAnswers = {std::nullopt, "D:\\EAGLE\\eagle.exe"};
        dialog.click(dialog.form().btnEAGLE);
        CHECK(dialog.form().txtEAGLE.text() == "C:\\old\\eagle.exe");
        CHECK(store::currentRoutine == "btnAdd_Click");
        dialog.click(dialog.form().btnEAGLE);
        CHECK(dialog.form().txtEAGLE.text() == "D:\\EAGLE\\eagle.exe");
        REQUIRE(dialog.desk().fileDialogs.size() == 2);
        const desktop::FileDialog& asked = dialog.desk().fileDialogs[0];
        CHECK(asked.file == "EAGLE.EXE");
        CHECK(asked.filter == "*.exe");
        CHECK(asked.title == store::LoadResString(1056 + offset));
        CHECK(asked.flags == 2103308);
        CHECK(asked.owner == dialog.form().window());
    }
}

TEST_CASE("a file dialog over the setup finds it enabled, so that the setup is in front again afterwards") {
    Dialog dialog;
    checkOwner(dialog, dialog.desk().onFileDialog, [](setup::frmSetup& form) { form.btnEAGLE.click(); });
}

TEST_CASE("a message over the setup finds it enabled, so that the setup is in front again afterwards") {
    Dialog dialog;
    checkOwner(dialog, dialog.desk().onMessage, [](setup::frmSetup& form) {
        form.chkEAGLE.click();
        form.txtEAGLE.edited("C:\\nonsense");
        form.btnOk.click();
    });
}

TEST_CASE("the icon chooser over the setup finds it enabled, and the setup is in front again afterwards") {
    Dialog dialog;
    store::boardButtons = namedList({"a"});
    dialog.desk().chooserAnswers = {{0, u"", 0}};
    checkOwner(dialog, dialog.desk().onFileDialog, [](setup::frmSetup& form) {
        form.lstApps[0].selected(0);
        form.btnIcon[0].click();
    });
}

TEST_CASE("the help opens in the dialog's language") {
    for (const auto& [offset, context] : {std::pair{0, 6000U}, std::pair{10000, 16000U}}) {
        Dialog dialog;
        store::languageOffset = offset;
        dialog.open(0);
        dialog.click(dialog.form().btnHelp);
        REQUIRE(dialog.desk().helpCalls.size() == 1);
        CHECK(dialog.desk().helpCalls[0].file == "C:\\kestrel\\EAGLE_Kestrel_Bench.chm");
        CHECK(dialog.desk().helpCalls[0].command == 15);
        CHECK(dialog.desk().helpCalls[0].data == context);
        CHECK(dialog.desk().helpCalls[0].owner == platform::HWND::none);
    }
}

TEST_CASE("without a help viewer it beeps, says so, and tries again until it can be reached") {
    Dialog dialog;
    dialog.open(0);
    dialog.desk().helpFailures = 2;
    dialog.click(dialog.form().btnHelp);
    CHECK(dialog.desk().helpCalls.size() == 3);
    CHECK(dialog.desk().beeps == 2);
    REQUIRE(dialog.desk().messageBoxes.size() == 2);
    CHECK(dialog.desk().messageBoxes[0].text == store::LoadResString(3100));
    CHECK(dialog.desk().messageBoxes[0].title == store::LoadResString(3101));
    CHECK(dialog.desk().messageBoxes[0].style == 16);
}

TEST_SUITE_END();
