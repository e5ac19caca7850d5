// The OK button: what it writes and in which order, its two checks, and what the rest of the program gets.
#include "desktop/faults.h"
#include "setup/dialog.h"

#include "store/textCatalogue.h"

#include <algorithm>

using setup::Dialog;
using setup::entry;
using setup::listOf;
using setup::namedList;
using setup::Names;
using store::ToolButton;

namespace {

const char* const eagleFile = "C:\\EAGLE\\bin\\EAGLE.exe";

/// A board list whose entry needs EAGLE's path.
store::ButtonList needingEagle() {
    ToolButton made = entry("a");
    made.path = "{eaglepath}\\eaglecon.exe";
    return listOf({made});
}

struct Saving : Dialog {
    using Dialog::Dialog;
    bool hourglass() { return form().mousePointer() == forms::MousePointer::hourglass; }
    void eaglePath(const std::string& path) { enter(form().txtEAGLE, path); }
    void autostart(bool on) {
        act([&] { form().chkEAGLE.setValue(on ? 1 : 0); });
    }
    void checkWrongPathShown(std::size_t times) {
        REQUIRE(desk().messageBoxes.size() == times);
        CHECK(desk().messageBoxes.back().text == store::LoadResString(1057 + store::languageOffset));
        CHECK(desk().messageBoxes.back().title == store::LoadResString(3930 + store::languageOffset));
        CHECK(desk().messageBoxes.back().style == 16);
    }
};

} // namespace

TEST_SUITE_BEGIN("setup/saving");

TEST_CASE("OK writes the options, then EAGLE's path, then the lists, in this order") {
    Saving dialog;
    store::boardButtons = namedList({"b"});
    store::librButtons = namedList({"l"});
    dialog.open(0);
    dialog.desk().removeFile("C:\\kestrel\\kestrel.ini");
    dialog.act([&] {
        dialog.form().chkClose.click();
        dialog.form().chkLastBRD.click();
        dialog.form().chkLastLBR.click();
        dialog.form().chkUnitCalc.click();
        dialog.form().cboUnit[0].selected(1);
        dialog.form().cboUnit[1].selected(2);
        dialog.form().cboAccur[0].selected(3);
        dialog.form().cboAccur[1].selected(7);
    });
    dialog.eaglePath("  C:\\not there  ");
    dialog.ok();
    CHECK(dialog.desk().settings() ==
          "[Toolbar]\r\nautoEAGLE=0\r\nautoToolbar=1\r\nwinEAGLE=5\r\noneEAGLE=0\r\n"
          "EAGLEpath=C:\\not there\r\n"
          "[Unit]\r\nVisible=1\r\nLeftUnit=Inch\r\nRightUnit=um\r\nLeftAccuracy=0.###\r\n"
          "RightAccuracy=0.#######\r\n"
          "[board]\r\n1name=b\r\n1path=b path\r\n1tooltip=b tip\r\n1param=b question\r\n"
          "1icon=\r\n1dialog=0\r\n1type=0\r\n"
          "[libr]\r\n1name=l\r\n1path=l path\r\n1tooltip=l tip\r\n1param=l question\r\n"
          "1icon=\r\n1dialog=0\r\n1type=0\r\n");
    CHECK(dialog.closed());
    CHECK_FALSE(dialog.hourglass());
    CHECK(dialog.desk().messageBoxes.empty());
}

TEST_CASE("each check box has a key of its own, and winEAGLE is the sum of three") {
    using Box = forms::CheckBox setup::frmSetup::*;
    const std::vector<std::tuple<Box, const char*, const char*>> boxes = {
        {&setup::frmSetup::chkClose, "autoToolbar", "1"}, {&setup::frmSetup::chkOneInst, "oneEAGLE", "1"},
        {&setup::frmSetup::chkLastBRD, "winEAGLE", "1"},  {&setup::frmSetup::chkLastSCH, "winEAGLE", "2"},
        {&setup::frmSetup::chkLastLBR, "winEAGLE", "4"},
    };
    for (const auto& [box, key, value] : boxes) {
        Saving dialog;
        dialog.open(0);
        dialog.act([&] { (dialog.form().*box).click(); });
        dialog.ok();
        for (const char* each : {"autoEAGLE", "autoToolbar", "winEAGLE", "oneEAGLE"})
            CHECK(store::getini("Toolbar", each) == (std::string(each) == key ? value : "0"));
        CHECK(store::getini("Unit", "Visible") == "0");
    }
}

TEST_CASE("OK sets the module variables of the calculator") {
    Saving dialog;
    dialog.open(0);
    dialog.act([&] {
        dialog.form().chkUnitCalc.click();
        dialog.form().cboUnit[0].selected(3);
        dialog.form().cboUnit[1].selected(0);
        dialog.form().cboAccur[0].selected(1);
        dialog.form().cboAccur[1].selected(2);
    });
    dialog.ok();
    CHECK(store::unitCalcActive == 1);
    CHECK(store::unitName[0] == "mm");
    CHECK(store::unitName[1] == "mil");
    CHECK(store::unitAccuracy[0] == "0.#");
    CHECK(store::unitAccuracy[1] == "0.##");
}

TEST_CASE("the calculator's variables are set before the first check fails") {
    Saving dialog;
    dialog.open(0);
    dialog.act([&] {
        dialog.form().chkUnitCalc.click();
        dialog.form().cboUnit[1].selected(1);
    });
    dialog.autostart(true);
    dialog.ok();
    CHECK_FALSE(dialog.closed());
    CHECK(store::unitCalcActive == 1);
    CHECK(store::unitName[1] == "Inch");
}

TEST_CASE("the calculator's default instance gets the new units, also when a check fails") {
    for (const bool fails : {false, true}) {
        Saving dialog("[Unit]\r\nVisible=1\r\n");
        dialog.desk().openWindow("Board - x.brd - EAGLE");
        dialog.ticks(1);
        dialog.open(0);
        dialog.act([&] {
            dialog.form().cboUnit[0].selected(1);
            dialog.form().cboUnit[1].selected(2);
        });
        dialog.autostart(fails);
        dialog.ok();
        CHECK(dialog.closed() != fails);
        CHECK(calculator::defaultMil().labUnit[0].caption() == "Inch");
        CHECK(calculator::defaultMil().labUnit[1].caption() == "um");
        REQUIRE(dialog.Program::form().calculators.size() == 2);
        CHECK(dialog.Program::form().calculators[1]->labUnit[0].caption() == "mil");
        calculator::defaultMil().labUnit[0].setCaption("mil");
        calculator::defaultMil().labUnit[1].setCaption("mm");
    }
}

TEST_CASE("a list that shows no unit is written as empty") {
    Saving dialog("[Unit]\r\nLeftUnit=cm\r\n");
    dialog.open(0);
    dialog.ok();
    CHECK(store::unitName[0].empty());
    CHECK(dialog.desk().settings().find("LeftUnit=\r\n") != std::string::npos);
}

TEST_CASE("autostart off and a wrong path, no button needing it: OK saves everything and closes") {
    Saving dialog;
    store::boardButtons = namedList({"a"});
    dialog.open(0);
    dialog.eaglePath("C:\\nonsense");
    dialog.ok();
    CHECK(dialog.closed());
    CHECK(store::getini("toolbar", "EAGLEpath") == "C:\\nonsense");
    CHECK(dialog.desk().settings().find("1name=a") != std::string::npos);
    CHECK(dialog.desk().messageBoxes.empty());
}

TEST_CASE("autostart on and a wrong path: message, options written, path and lists not, normal pointer") {
    for (const int offset : {0, 10000}) {
        Saving dialog("[toolbar]\r\nEAGLEpath=C:\\former\\eagle.exe\r\n");
        store::languageOffset = offset;
        store::boardButtons = namedList({"a"});
        const store::ButtonList saved = store::boardButtons;
        dialog.open(1);
        dialog.select(0, 0);
        dialog.enter(dialog.form().txtTitle[0], "edited");
        dialog.autostart(true);
        dialog.eaglePath("C:\\nonsense");
        bool waiting = false;
        dialog.desk().onMessage = [&] { waiting = dialog.hourglass(); };
        dialog.ok();
        CHECK(waiting);
        dialog.checkWrongPathShown(1);
        CHECK_FALSE(dialog.closed());
        CHECK_FALSE(dialog.hourglass());
        CHECK(store::getini("toolbar", "autoEAGLE") == "1");
        CHECK(store::getini("Unit", "RightAccuracy") == "@");
        CHECK(store::getini("toolbar", "EAGLEpath") == "C:\\former\\eagle.exe");
        CHECK(dialog.desk().settings().find("[board]") == std::string::npos);
        CHECK(store::boardButtons == saved);
        CHECK(dialog.record(0, 1).name == "edited");
        CHECK(dialog.selected(0) == 0);
        // With the path put right all of it is saved after all.
        dialog.desk().writeFile(eagleFile, "MZ");
        dialog.eaglePath(eagleFile);
        dialog.ok();
        CHECK(dialog.closed());
        CHECK(store::boardButtons[1].name == "edited");
        CHECK(dialog.desk().messageBoxes.size() == 1);
    }
}

TEST_CASE("OK shows the hourglass until the form has closed, and leaves the normal pointer behind") {
    Saving dialog;
    dialog.open(0);
    const setup::frmSetup& form = dialog.form();
    int writes = 0;
    int closings = 0;
    desktop::faults().onCall = [&](const std::string& call) {
        if (call == "WritePrivateProfileStringA" && dialog.hourglass())
            ++writes;
    };
    setup::frmSetup::onWindowReset = [&] { closings += dialog.hourglass() ? 1 : 0; };
    dialog.ok();
    setup::frmSetup::onWindowReset = nullptr;
    desktop::faults().onCall = nullptr;
    CHECK(writes > 0);
    CHECK(closings == 2); // for the button, and as the form is unloaded
    CHECK(form.closed());
    CHECK(form.mousePointer() == forms::MousePointer::standard);
}

TEST_CASE("a wrong path and a button that needs it: all is saved, message, open with the hourglass") {
    Saving dialog;
    store::boardButtons = needingEagle();
    dialog.open(0);
    dialog.eaglePath("C:\\nonsense");
    dialog.ok();
    dialog.checkWrongPathShown(1);
    CHECK_FALSE(dialog.closed());
    CHECK(dialog.hourglass());
    CHECK(store::getini("toolbar", "EAGLEpath") == "C:\\nonsense");
    CHECK(dialog.desk().settings().find("1path={eaglepath}\\eaglecon.exe") != std::string::npos);
    CHECK(dialog.form().workList[0] == needingEagle());
    // The user corrects the path and presses OK again.
    dialog.desk().writeFile(eagleFile, "MZ");
    dialog.eaglePath(eagleFile);
    dialog.ok();
    CHECK(dialog.closed());
    CHECK_FALSE(dialog.hourglass());
}

TEST_CASE("after the second check Cancel keeps what has been saved") {
    Saving dialog;
    store::schemButtons = needingEagle();
    dialog.open(0);
    dialog.ok();
    dialog.click(dialog.form().btnCancel);
    CHECK(dialog.closed());
    CHECK(dialog.desk().settings().find("[schem]\r\n1name=a") != std::string::npos);
}

TEST_CASE("a token in the icon asks for the path too, one that is not in lower case does not") {
    ToolButton icon = entry("a");
    icon.icon = "{eaglepath}\\bin\\eagle.exe,0";
    ToolButton upper = entry("a");
    upper.path = "{EaglePath}\\x.exe";
    for (const auto& [list, asks] : {std::pair{listOf({icon}), true}, std::pair{listOf({upper}), false}}) {
        Saving dialog;
        store::librButtons = list;
        dialog.open(0);
        dialog.ok();
        CHECK(dialog.desk().messageBoxes.size() == (asks ? 1 : 0));
        CHECK(dialog.closed() != asks);
    }
}

TEST_CASE("with autostart a valid path passes both checks") {
    Saving dialog;
    dialog.desk().writeFile(eagleFile, "MZ");
    store::boardButtons = needingEagle();
    dialog.open(0);
    dialog.autostart(true);
    dialog.eaglePath(eagleFile);
    dialog.ok();
    CHECK(dialog.closed());
    CHECK(dialog.desk().messageBoxes.empty());
    CHECK(store::getini("toolbar", "EAGLEpath") == eagleFile);
}

TEST_CASE("EAGLE's path has to be that of a file of this name, in any mix of case") {
    struct Path {
        const char* text;
        bool valid;
    };
    for (const Path& path :
         {Path{"C:\\EAGLE\\BIN\\EAGLE.EXE", true}, Path{"c:\\eagle\\bin\\eagle.exe", true},
          Path{"C:\\EAGLE\\bin\\other.exe", false}, Path{"C:\\EAGLE\\bin\\missing.exe", false},
          Path{"C:\\EAGLE\\bin", false}, Path{"C:\\EAGLE\\bin\\hidden\\eagle.exe", false},
          Path{"C:\\EAGLE\\folder\\eagle.exe", false}, Path{"", false}, Path{"eagle.exe", false},
          Path{"C:\\EAGLE\\bin\\myeagle.exe", false}}) {
        CAPTURE(path.text);
        Saving dialog;
        dialog.desk().writeFile(eagleFile, "MZ");
        dialog.desk().writeFile("C:\\EAGLE\\bin\\other.exe", "MZ");
        dialog.desk().writeFile("C:\\EAGLE\\bin\\myeagle.exe", "MZ");
        dialog.desk().writeFile("C:\\EAGLE\\bin\\hidden\\eagle.exe", "MZ");
        dialog.desk().file("C:\\EAGLE\\bin\\hidden\\eagle.exe")->hidden = true;
        dialog.desk().writeFile("C:\\EAGLE\\folder\\eagle.exe", "");
        dialog.desk().file("C:\\EAGLE\\folder\\eagle.exe")->directory = true;
        dialog.open(0);
        dialog.autostart(true);
        dialog.eaglePath(path.text);
        dialog.ok();
        CHECK(dialog.closed() == path.valid);
    }
}

TEST_CASE("OK with untouched lists rewrites their keys with the same content") {
    const std::string lists =
        "[board]\r\n1name=a\r\n1path=p\r\n1tooltip=\r\n1param=\r\n1icon=x.ico,0\r\n1dialog=2\r\n"
        "1type=1\r\n2name=b\r\n2path=\r\n2tooltip=t\r\n2param=\r\n2icon=\r\n2dialog=0\r\n"
        "2type=2\r\n";
    Saving dialog(lists);
    dialog.open(0);
    dialog.ok();
    CHECK(dialog.desk().settings().find(lists) != std::string::npos);
}

TEST_CASE("the working lists go over the saved ones, whole, with the records removed last") {
    Saving dialog;
    store::boardButtons = namedList({"a", "b", "c"});
    store::schemButtons = namedList({"only"});
    dialog.open(1);
    dialog.select(0, 1);
    dialog.click(dialog.form().btnRemove[0]);
    dialog.select(1, 0);
    dialog.click(dialog.form().btnRemove[1]);
    dialog.click(dialog.form().btnAddSep[2]);
    dialog.ok();
    CHECK(store::boardButtons == namedList({"a", "c"}));
    REQUIRE(store::schemButtons.upperBound() == 1);
    CHECK(store::schemButtons[1].live == 0);
    REQUIRE(store::librButtons.upperBound() == 1);
    CHECK(store::librButtons[1].type == 2);
}

TEST_CASE("all entries of a list removed: no entry of it is written, and the section goes") {
    Saving dialog("[board]\r\n1name=a\r\n1path=p\r\n1dialog=0\r\n1type=1\r\n");
    dialog.open(1);
    dialog.select(0, 0);
    dialog.click(dialog.form().btnRemove[0]);
    dialog.ok();
    CHECK(dialog.desk().settings().find("[board]") == std::string::npos);
    CHECK(dialog.closed());
}

TEST_CASE("a list that never had an entry is saved as one without an entry, and its section goes") {
    Saving dialog;
    dialog.open(0);
    // Another toolbar has loaded a row meanwhile.
    store::boardButtons = namedList({"meanwhile", "two"});
    dialog.desk().writeSettings("[board]\r\n1name=meanwhile\r\n");
    dialog.ok();
    CHECK(store::boardButtons.allocated());
    CHECK(store::boardButtons.upperBound() == 0);
    CHECK(store::schemButtons.allocated());
    CHECK(store::librButtons.allocated());
    CHECK(dialog.desk().settings().find("[board]") == std::string::npos);
}

TEST_CASE("OK does nothing about the language") {
    Saving dialog("[global]\r\nlanguage=10000\r\n");
    dialog.open(0);
    dialog.desk().writeSettings("[global]\r\nlanguage=7\r\n");
    dialog.ok();
    CHECK(store::getini("global", "language") == "7");
    CHECK(store::languageOffset == 10000);
}

TEST_CASE("OK goes by its own name while it keeps the settings, before it writes the first") {
    Saving dialog;
    dialog.open(0);
    std::vector<std::string> routines;
    desktop::faults().onCall = [&](const std::string&) { routines.push_back(store::currentRoutine); };
    dialog.ok();
    desktop::faults().onCall = nullptr;
    REQUIRE_FALSE(routines.empty());
    CHECK(routines.front() == "btnOk_Click");
    CHECK(std::count(routines.begin(), routines.end(), "setini") > 0);
}

TEST_CASE("OK closes as Cancel does, Hauptform's tables cleared") {
    Saving dialog;
    dialog.open(0);
    core::Hauptform& hauptform = dialog.Program::form();
    hauptform.windowTable[1] = 5;
    dialog.ok();
    CHECK(hauptform.windowTable[1] == 0);
    CHECK(hauptform.positions[3].top == 9999);
    CHECK(store::currentRoutine == "Form_QueryUnload");
}

TEST_SUITE_END();
