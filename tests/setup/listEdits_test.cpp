// The list pages: adding programs and removing entries.
#include "setup/dialog.h"

#include "desktop/keyboard.h"
#include "store/textCatalogue.h"

using desktop::typeInto;
using setup::Dialog;
using setup::entry;
using setup::frmSetup;
using setup::listOf;
using setup::Lists;
using setup::namedList;
using setup::Names;
using setup::savedList;
using store::ToolButton;

TEST_SUITE_BEGIN("setup/listEdits");

TEST_CASE("adding a program asks for its file, in the dialog's language and owned by the form") {
    for (const int offset : {0, 10000}) {
        Lists dialog(Names{});
        store::languageOffset = offset;
        store::currentRoutine.clear();
        dialog.desk().fileAnswers.push_back("C:\\tools\\edit.exe");
        dialog.desk().onFileDialog = [&] {
            CHECK(dialog.form().noUpdate == -1);
            CHECK(dialog.blank(1));
        };
        dialog.click(dialog.form().btnAdd[1]);
        REQUIRE(dialog.desk().fileDialogs.size() == 1);
        const desktop::FileDialog& asked = dialog.desk().fileDialogs[0];
        CHECK(asked.file == "*.EXE;*.BAT;*.COM;*.PIF");
        CHECK(asked.filter == store::LoadResString(1051 + offset));
        CHECK(asked.title == store::LoadResString(1050 + offset));
        CHECK(asked.flags == 2103308);
        CHECK(asked.owner == dialog.form().window());
        CHECK_FALSE(asked.save);
        CHECK(store::currentRoutine == "btnAdd_Click");
    }
}

TEST_CASE("a chosen program becomes the last entry, selected, with its bare name as title") {
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        Lists dialog(Names{"a"});
        dialog.desk().addIcons("C:\\tools\\edit.exe", 1);
        dialog.select(page, 0);
        dialog.desk().fileAnswers.push_back("C:\\tools\\edit.exe");
        dialog.click(dialog.form().btnAdd[page]);
        ToolButton expected;
        expected.name = "edit.exe";
        expected.path = "C:\\tools\\edit.exe";
        expected.icon = "C:\\tools\\edit.exe,0";
        expected.live = 1;
        expected.rowNumber = 2;
        CHECK(dialog.record(page, 2) == expected);
        CHECK(dialog.record(page, 1) == entry("a"));
        CHECK(dialog.rows(page) == Names{"a", "edit.exe"});
        CHECK(dialog.selected(page) == 1);
        CHECK(dialog.form().txtTitle[page].text() == "edit.exe");
        CHECK(dialog.form().txtPath[page].text() == "C:\\tools\\edit.exe");
        CHECK(dialog.form().txtTooltip[page].text().empty());
        CHECK(dialog.form().txtPara[page].text().empty());
        CHECK(dialog.form().noUpdate == 0);
        CHECK(dialog.form().picView[page].picture().pixel(5, 5) ==
              desktop::World::iconPicture("C:\\tools\\edit.exe", 0).pixel(4, 4));
        CHECK_FALSE(dialog.form().picView[page].visible());
        CHECK(dialog.form().Timer1[page].enabled());
    }
}

TEST_CASE("no path token is put into a path below the program's folder") {
    Lists dialog(Names{});
    dialog.desk().fileAnswers.push_back("C:\\kestrel\\tool.exe");
    dialog.click(dialog.form().btnAdd[0]);
    CHECK(dialog.record(0, 1).path == "C:\\kestrel\\tool.exe");
    CHECK(dialog.record(0, 1).icon == "C:\\kestrel\\tool.exe,0");
}

TEST_CASE("a file name without a folder is its own title") {
    Lists dialog(Names{});
    dialog.desk().fileAnswers.push_back("edit.exe");
    dialog.click(dialog.form().btnAdd[0]);
    CHECK(dialog.record(0, 1).name == "edit.exe");
    CHECK(dialog.record(0, 1).path == "edit.exe");
}

TEST_CASE("a cancelled file dialog on an empty list leaves no row selected") {
    Dialog dialog;
    dialog.open(1);
    dialog.click(dialog.form().btnAdd[0]);
    CHECK(dialog.rows(0).empty());
    CHECK(dialog.selected(0) == -1);
    CHECK_FALSE(dialog.form().workList[0].allocated());
    CHECK(dialog.form().txtTitle[0].enabled());
    CHECK(dialog.form().noUpdate == 0);
    CHECK(dialog.form().Timer1[0].enabled());
}

TEST_CASE("a cancelled file dialog selects the last row, which shows again") {
    Lists dialog(Names{"a", "b"});
    dialog.select(0, 0);
    dialog.click(dialog.form().btnAdd[0]);
    CHECK(dialog.selected(0) == 1);
    CHECK(dialog.form().txtTitle[0].text() == "b");
    CHECK(dialog.form().workList[0] == namedList({"a", "b"}));
}

TEST_CASE("cancelled with the last row selected the fields stay blank, and typing overwrites its field") {
    Lists dialog(Names{"a", "b"});
    dialog.select(0, 1);
    dialog.click(dialog.form().btnAdd[0]);
    CHECK(dialog.selected(0) == 1);
    CHECK(dialog.blank(0));
    CHECK(dialog.form().workList[0] == namedList({"a", "b"}));
    dialog.act([&] { typeInto(dialog.form().txtTitle[0], "X"); });
    CHECK(dialog.record(0, 2).name == "X");
    CHECK(dialog.record(0, 2).path == "b path");
}

TEST_CASE("an add switches the page's first option button on, and writes nothing by it") {
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        Lists dialog(listOf({entry("a", 0, 2)}));
        dialog.select(page, 0);
        for (std::size_t list = 0; list < setup::listPages; ++list)
            dialog.form().workList[list] = savedList(list);
        dialog.click(dialog.form().btnAdd[page]);
        CHECK(dialog.form().chkAdd[3 * page].value());
        for (std::size_t list = 0; list < setup::listPages; ++list)
            CHECK(dialog.form().workList[list] == savedList(list));
    }
}

TEST_CASE("a removal leaves each page as for the type with its number") {
    struct Left {
        bool edits;
        int pathText;
    };
    const std::array<Left, 3> left = {{{true, 1002}, {true, 1052}, {false, 1002}}};
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        CAPTURE(page);
        Lists dialog(Names{"a", "b", "c"});
        dialog.select(page, 1);
        dialog.click(dialog.form().btnRemove[page]);
        CHECK(dialog.rows(page) == Names{"a", "c"});
        CHECK(dialog.selected(page) == -1);
        CHECK(dialog.form().workList[page] == namedList({"a", "c"}));
        CHECK(dialog.blank(page));
        frmSetup& form = dialog.form();
        CHECK(form.txtTitle[page].enabled() == left[page].edits);
        CHECK(form.fraCommand[page].enabled() == left[page].edits);
        CHECK(form.btnIcon[page].enabled() == left[page].edits);
        CHECK(form.labPath[page].caption() == store::LoadResString(left[page].pathText));
        CHECK(form.chkAdd[3 * page].value());
        CHECK(form.picView[page].picture().empty());
        // Edits go nowhere now.
        dialog.enter(form.txtTitle[page], "x");
        CHECK(form.workList[page] == namedList({"a", "c"}));
    }
}

TEST_CASE("a removal with no row selected empties the fields and removes nothing") {
    Lists dialog(Names{"a", "b"});
    dialog.click(dialog.form().btnRemove[1]);
    CHECK(dialog.rows(1) == Names{"a", "b"});
    CHECK(dialog.form().workList[1] == namedList({"a", "b"}));
    CHECK(dialog.form().txtTitle[1].enabled());
}

TEST_CASE("the only entry when removed stays in the array until the next add drops it") {
    Lists dialog(Names{"a"});
    dialog.select(0, 0);
    dialog.click(dialog.form().btnRemove[0]);
    CHECK(dialog.rows(0).empty());
    REQUIRE(dialog.form().workList[0].upperBound() == 1);
    CHECK(dialog.record(0, 1).live == 0);
    // The texts were emptied while the row was selected still.
    CHECK(dialog.record(0, 1).name.empty());
    dialog.click(dialog.form().btnRemove[0]);
    CHECK(dialog.form().workList[0].upperBound() == 1);
    dialog.click(dialog.form().btnAddSep[0]);
    REQUIRE(dialog.form().workList[0].upperBound() == 1);
    CHECK(dialog.record(0, 1).type == 2);
    CHECK(dialog.record(0, 1).rowNumber == 2);
}

TEST_CASE("add, remove, add: the new entry stands in row 0") {
    Dialog dialog;
    dialog.open(1);
    dialog.desk().fileAnswers = {"C:\\one.exe", "C:\\two.exe"};
    dialog.click(dialog.form().btnAdd[0]);
    dialog.click(dialog.form().btnRemove[0]);
    dialog.click(dialog.form().btnAdd[0]);
    CHECK(dialog.rows(0) == Names{"two.exe"});
    CHECK(dialog.selected(0) == 0);
    CHECK(dialog.record(0, 1).path == "C:\\two.exe");
}

TEST_SUITE_END();
