// The frame of the setup dialog: its opening, the working copies, the preview's pause, the ways of closing.
#include "setup/dialog.h"

using setup::Dialog;
using setup::namedList;
using setup::Names;
using setup::setupForm;

namespace {

const char* const someSettings =
    "[toolbar]\r\noneEAGLE=1\r\nEAGLEpath=C:\\e\\eagle.exe\r\n"
    "[board]\r\n1name=Fit\r\n1path=window fit\r\n1tooltip=\r\n1param=\r\n1icon=\r\n"
    "1dialog=0\r\n1type=1\r\n"
    "[global]\r\nlanguage=0\r\n";

void editSomething(Dialog& dialog) {
    dialog.select(0, 0);
    dialog.enter(dialog.form().txtTitle[0], "Another");
    dialog.click(dialog.form().btnAddSep[0]);
    dialog.act([&] { dialog.form().chkEAGLE.click(); });
    dialog.enter(dialog.form().txtEAGLE, "C:\\other\\eagle.exe");
}

} // namespace

TEST_SUITE_BEGIN("setup/frame");

TEST_CASE("the first opening with empty lists shows empty list boxes, disabled fields and the tab given") {
    for (int page = 0; page < 4; ++page) {
        Dialog dialog;
        dialog.open(page);
        CHECK(dialog.form().TabStrip1.tab() == page);
        for (std::size_t list = 0; list < setup::listPages; ++list) {
            CHECK(dialog.rows(list).empty());
            CHECK_FALSE(dialog.form().workList[list].allocated());
            CHECK_FALSE(dialog.form().txtTitle[list].enabled());
            CHECK_FALSE(dialog.form().txtPath[list].enabled());
            CHECK_FALSE(dialog.form().txtTooltip[list].enabled());
            CHECK_FALSE(dialog.form().txtPara[list].enabled());
            CHECK_FALSE(dialog.form().btnIcon[list].enabled());
        }
        for (const forms::OptionButton& option : dialog.form().chkAdd) {
            CHECK_FALSE(option.enabled());
            CHECK_FALSE(option.value());
        }
    }
}

TEST_CASE("a tab that is not there is refused") {
    Dialog dialog;
    dialog.open(0);
    CHECK_THROWS_AS(dialog.form().setType(4), runtime::RuntimeError);
}

TEST_CASE("the form is a fixed window in the middle of the screen, with no button in the task bar") {
    Dialog dialog;
    dialog.open(0);
    setup::frmSetup& form = dialog.form();
    CHECK(form.borderStyle == forms::BorderStyle::fixedSingle);
    CHECK_FALSE(form.showInTaskbar);
    CHECK(form.scaleWidth() == 6780);
    CHECK(form.scaleHeight() == 9375);
    const platform::RECT place = dialog.desk().window(form.window()).rect;
    CHECK(place.left == (1280 - (place.right - place.left)) / 2);
    CHECK(place.top == (1024 - (place.bottom - place.top)) / 2);
    CHECK(form.btnOk.isDefault);
    CHECK(form.btnCancel.isCancel);
}

TEST_CASE("opening takes all three saved lists, each on its page, as copies") {
    Dialog dialog;
    store::boardButtons = namedList({"b1", "b2"});
    store::schemButtons = namedList({"s1"});
    store::librButtons = namedList({"l1", "l2", "l3"});
    dialog.open(2);
    CHECK(dialog.rows(0) == Names{"b1", "b2"});
    CHECK(dialog.rows(1) == Names{"s1"});
    CHECK(dialog.rows(2) == Names{"l1", "l2", "l3"});
    for (std::size_t list = 0; list < setup::listPages; ++list)
        CHECK(dialog.selected(list) == -1);
    dialog.select(2, 1);
    dialog.enter(dialog.form().txtPath[2], "changed");
    CHECK(dialog.record(2, 2).path == "changed");
    CHECK(store::librButtons[2].path == "l2 path");
}

TEST_CASE("a whole record is copied, its row number too") {
    Dialog dialog;
    store::boardButtons = namedList({"b1"});
    store::boardButtons[1].rowNumber = 7;
    store::boardButtons[1].dialog = 2;
    store::boardButtons[0].dialog = 1;
    dialog.open(1);
    CHECK(dialog.form().workList[0] == store::boardButtons);
}

TEST_CASE("the texts are loaded over the working copies of the opening before, then these are replaced") {
    Dialog dialog;
    store::boardButtons = namedList({"b1", "b2"});
    dialog.act([&] { setupForm().loadResources(); });
    CHECK(setupForm().loaded());
    CHECK(dialog.rows(0).empty());
    dialog.act([&] { setupForm().setType(1); });
    CHECK(dialog.rows(0) == Names{"b1", "b2"});
    dialog.click(dialog.form().btnAddSep[0]);
    dialog.click(dialog.form().btnCancel);
    dialog.act([&] { setupForm().loadResources(); });
    CHECK(dialog.rows(0).size() == 3);
    dialog.act([&] { setupForm().setType(1); });
    CHECK(dialog.rows(0) == Names{"b1", "b2"});
}

TEST_CASE("after a closing the form is made anew, with all controls as designed") {
    Dialog dialog;
    store::boardButtons = namedList({"b1"});
    dialog.open(1);
    dialog.select(0, 0);
    REQUIRE(dialog.form().txtTitle[0].enabled());
    dialog.click(dialog.form().btnCancel);
    CHECK(setupForm().cboLanguage.listIndex() == -1);
    CHECK(setupForm().noUpdate == 0);
    dialog.open(3);
    CHECK(dialog.form().txtTitle[0].text().empty());
    CHECK_FALSE(dialog.form().txtTitle[0].enabled());
    CHECK_FALSE(dialog.form().chkAdd[0].value());
    CHECK_FALSE(dialog.form().chkAdd[0].enabled());
    CHECK(dialog.form().picView[0].picture().empty());
    CHECK(dialog.form().mousePointer() == forms::MousePointer::standard);
    CHECK(dialog.form().TabStrip1.tab() == 3);
}

TEST_CASE("Cancel writes nothing, and the lists are as they were") {
    for (const bool titleBar : {false, true}) {
        Dialog dialog(someSettings);
        const store::ButtonList before = store::boardButtons;
        dialog.open(1);
        const std::string settings = dialog.desk().settings();
        editSomething(dialog);
        if (titleBar)
            dialog.act([&] { dialog.form().closeRequested(); });
        else
            dialog.click(dialog.form().btnCancel);
        CHECK(dialog.desk().settings() == settings);
        CHECK(store::boardButtons == before);
        CHECK(dialog.desk().messageBoxes.empty());
    }
}

TEST_CASE("closing clears slots 1 to 8 of Hauptform's window table and sets its records, by either way") {
    for (const bool titleBar : {false, true}) {
        Dialog dialog;
        dialog.open(0);
        core::Hauptform& hauptform = dialog.Program::form();
        hauptform.windowTable.fill(7);
        hauptform.positions[1] = {1, 2, 3, 4};
        if (titleBar)
            dialog.act([&] { dialog.form().closeRequested(); });
        else
            dialog.click(dialog.form().btnCancel);
        const std::array<std::int32_t, 9> cleared = {7};
        CHECK(hauptform.windowTable == cleared);
        for (std::size_t record = 1; record <= 3; ++record)
            CHECK(hauptform.positions[record].top == 9999);
        CHECK(hauptform.positions[0].top == 0);
        CHECK(hauptform.positions[1].left == 1);
        CHECK(hauptform.positions[1].right == 3);
        CHECK(hauptform.positions[1].bottom == 4);
        static_assert(sizeof(core::PositionRecord) == 16);
    }
}

TEST_CASE("the unload that Cancel starts runs the steps of the closing event too") {
    Dialog dialog;
    dialog.open(0);
    std::vector<std::string> routines;
    setup::frmSetup::onWindowReset = [&] { routines.push_back(store::currentRoutine); };
    dialog.click(dialog.form().btnCancel);
    setup::frmSetup::onWindowReset = nullptr;
    CHECK(routines == std::vector<std::string>{"btnCancel_Click", "Form_QueryUnload"});
    CHECK(store::currentRoutine == "Form_QueryUnload");
}

TEST_CASE("a fresh preview shows after 50 ms, once") {
    Dialog dialog;
    dialog.desk().addIcons("C:\\tool.exe", 1);
    store::schemButtons = namedList({"s1"});
    store::schemButtons[1].icon = "C:\\tool.exe,0";
    dialog.open(2);
    forms::PictureBox& view = dialog.form().picView[1];
    CHECK(view.visible());
    CHECK_FALSE(dialog.form().Timer1[1].enabled());
    dialog.select(1, 0);
    CHECK_FALSE(view.visible());
    CHECK(dialog.form().Timer1[1].enabled());
    CHECK_FALSE(view.picture().empty());
    dialog.desk().run(49);
    CHECK_FALSE(view.visible());
    dialog.desk().run(1);
    CHECK(view.visible());
    CHECK_FALSE(dialog.form().Timer1[1].enabled());
    CHECK(dialog.form().picView[0].visible());
}

TEST_CASE("a preview that is still to come dies with the form") {
    Dialog dialog;
    store::boardButtons = namedList({"b1"});
    dialog.open(1);
    dialog.select(0, 0);
    const std::size_t timers = dialog.desk().timers.size();
    dialog.click(dialog.form().btnCancel);
    CHECK(dialog.desk().timers.size() == timers - 1);
}

TEST_CASE("the opener waits until the dialog has closed, and timers go on meanwhile") {
    Dialog dialog;
    int ticks = 0;
    forms::Timer timer(200, true);
    timer.onTimer = [&] { ++ticks; };
    bool closed = false;
    dialog.desk().modalScripts.push_back([&](forms::Form& form) {
        CHECK(&form == &setupForm());
        CHECK(form.visible());
        CHECK(setupForm().TabStrip1.tab() == 3);
        dialog.desk().run(1000);
        CHECK(ticks == 5);
        closed = true;
        setupForm().btnCancel.click();
    });
    dialog.act([&] {
        setup::openSetup(3);
        CHECK(closed);
    });
}

TEST_CASE("a dialog that is up is not opened again, and keeps its edits") {
    Dialog dialog;
    store::boardButtons = namedList({"b1"});
    dialog.desk().modalScripts.push_back([&](forms::Form& /*form*/) {
        dialog.select(0, 0);
        dialog.enter(setupForm().txtTitle[0], "edited");
        setup::openSetup(2);
        CHECK(setupForm().TabStrip1.tab() == 1);
        CHECK(dialog.record(0, 1).name == "edited");
        setupForm().btnCancel.click();
    });
    dialog.act([&] { setup::openSetup(1); });
    CHECK(dialog.desk().modalScripts.empty());
}

TEST_CASE("the tracker notes the host of a new calculator in slot 1 of the window table") {
    Dialog dialog("[Unit]\r\nVisible=1\r\n");
    const auto host = dialog.desk().openWindow("Board - x.brd - EAGLE");
    dialog.ticks(1);
    CHECK(dialog.Program::form().windowTable[1] == static_cast<std::int32_t>(host));
}

TEST_SUITE_END();
