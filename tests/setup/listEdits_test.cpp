// The list pages: adding programs, removing entries, and the option buttons with their wiring across the
// pages.
#include "setup/dialog.h"

#include "store/textCatalogue.h"

using setup::Dialog;
using setup::entry;
using setup::frmSetup;
using setup::listOf;
using setup::namedList;
using setup::Names;
using store::ToolButton;

namespace {

store::ButtonList& savedList(std::size_t page) {
    return *store::listOf(static_cast<store::EditorKind>(page)).buttons;
}

struct Lists : Dialog {
    explicit Lists(const store::ButtonList& list) {
        for (std::size_t page = 0; page < setup::listPages; ++page)
            savedList(page) = list;
        open(1);
    }
    explicit Lists(const Names& names) : Lists(namedList(names)) {}

    void answerFile(const std::optional<std::string>& file) { desk().fileAnswers.push_back(file); }
    bool blank(std::size_t page) {
        return form().txtTitle[page].text().empty() && form().txtPath[page].text().empty() &&
               form().txtTooltip[page].text().empty() && form().txtPara[page].text().empty();
    }
    /// As the user's click, also on a button that is disabled on the page.
    void set(std::size_t option) {
        act([&] { form().chkAdd[option].setValue(true); });
    }
};

} // namespace

TEST_CASE("setup: adding a program asks for its file, in the dialog's language and owned by the form") {
    for (const int offset : {0, 10000}) {
        Lists dialog(Names{});
        core::languageOffset = offset;
        store::currentRoutine.clear();
        dialog.answerFile("C:\\tools\\edit.exe");
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

TEST_CASE("setup: a chosen program becomes the last entry, selected, with its bare name as title") {
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        Lists dialog(Names{"a"});
        dialog.desk().addIcons("C:\\tools\\edit.exe", 1);
        dialog.select(page, 0);
        dialog.answerFile("C:\\tools\\edit.exe");
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

TEST_CASE("setup: no path token is put into a path below the program's folder") {
    Lists dialog(Names{});
    dialog.answerFile("C:\\kestrel\\tool.exe");
    dialog.click(dialog.form().btnAdd[0]);
    CHECK(dialog.record(0, 1).path == "C:\\kestrel\\tool.exe");
    CHECK(dialog.record(0, 1).icon == "C:\\kestrel\\tool.exe,0");
}

TEST_CASE("setup: a file name without a folder is its own title") {
    Lists dialog(Names{});
    dialog.answerFile("edit.exe");
    dialog.click(dialog.form().btnAdd[0]);
    CHECK(dialog.record(0, 1).name == "edit.exe");
    CHECK(dialog.record(0, 1).path == "edit.exe");
}

TEST_CASE("setup: a cancelled file dialog on an empty list leaves no row selected") {
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

TEST_CASE("setup: a cancelled file dialog selects the last row, which shows again") {
    Lists dialog(Names{"a", "b"});
    dialog.select(0, 0);
    dialog.click(dialog.form().btnAdd[0]);
    CHECK(dialog.selected(0) == 1);
    CHECK(dialog.form().txtTitle[0].text() == "b");
    CHECK(dialog.form().workList[0] == namedList({"a", "b"}));
}

TEST_CASE(
    "setup: cancelled with the last row selected the fields stay blank, and typing overwrites its field") {
    Lists dialog(Names{"a", "b"});
    dialog.select(0, 1);
    dialog.click(dialog.form().btnAdd[0]);
    CHECK(dialog.selected(0) == 1);
    CHECK(dialog.blank(0));
    CHECK(dialog.form().workList[0] == namedList({"a", "b"}));
    dialog.act([&] { dialog.form().txtTitle[0].typeCharacter('X'); });
    CHECK(dialog.record(0, 2).name == "X");
    CHECK(dialog.record(0, 2).path == "b path");
}

TEST_CASE("setup: an add switches the page's first option button on, and writes nothing by it") {
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

TEST_CASE("setup: a removal leaves each page as for the type with its number") {
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

TEST_CASE("setup: a removal with no row selected empties the fields and removes nothing") {
    Lists dialog(Names{"a", "b"});
    dialog.click(dialog.form().btnRemove[1]);
    CHECK(dialog.rows(1) == Names{"a", "b"});
    CHECK(dialog.form().workList[1] == namedList({"a", "b"}));
    CHECK(dialog.form().txtTitle[1].enabled());
}

TEST_CASE("setup: the only entry when removed stays in the array until the next add drops it") {
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

TEST_CASE("setup: add, remove, add: the new entry stands in row 0") {
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

TEST_CASE("setup: the board page's first option button takes the dialog away from its own entry") {
    Lists dialog(listOf({entry("a", 0, 2), entry("b", 0, 2)}));
    dialog.select(0, 1);
    dialog.form().txtPara[0].setEnabled(true);
    dialog.form().labPara[0].setEnabled(true);
    dialog.choose(dialog.form().chkAdd[0]);
    CHECK(dialog.record(0, 2).dialog == 0);
    CHECK(dialog.record(0, 1).dialog == 2);
    CHECK_FALSE(dialog.form().txtPara[0].enabled());
    CHECK_FALSE(dialog.form().labPara[0].enabled());
    CHECK(dialog.form().workList[1] == savedList(1));
    CHECK(dialog.form().workList[2] == savedList(2));
}

TEST_CASE("setup: the board page's second option button writes an input box into the schematic list") {
    Lists dialog(Names{"a", "b"});
    dialog.select(1, 1);
    dialog.select(0, 0);
    dialog.choose(dialog.form().chkAdd[1]);
    CHECK(dialog.record(1, 2).dialog == 1);
    CHECK(dialog.record(1, 1).dialog == 0);
    CHECK(dialog.form().workList[0] == savedList(0));
    CHECK(dialog.form().workList[2] == savedList(2));
    CHECK(dialog.form().txtPara[0].enabled());
    CHECK(dialog.form().labPara[0].enabled());
    CHECK_FALSE(dialog.form().txtPara[1].enabled());
}

TEST_CASE("setup: the board page's third option button writes a file dialog into the library list") {
    Lists dialog(Names{"a", "b"});
    dialog.select(2, 0);
    dialog.select(1, 1);
    dialog.select(0, 0);
    dialog.choose(dialog.form().chkAdd[2]);
    CHECK(dialog.record(2, 1).dialog == 2);
    CHECK(dialog.form().workList[0] == savedList(0));
    CHECK(dialog.form().workList[1] == savedList(1));
    CHECK(dialog.form().txtPara[1].enabled());
    CHECK(dialog.form().labPara[1].enabled());
    CHECK_FALSE(dialog.form().txtPara[0].enabled());
    CHECK_FALSE(dialog.form().txtPara[2].enabled());
}

TEST_CASE("setup: the third option button asks for a selection on the schematic page, not on its own") {
    Lists dialog(Names{"a", "b"});
    dialog.select(0, 0);
    dialog.choose(dialog.form().chkAdd[2]);
    CHECK(dialog.form().chkAdd[2].value());
    CHECK(dialog.form().workList[2] == savedList(2));
    CHECK_FALSE(dialog.form().txtPara[1].enabled());
}

TEST_CASE("setup: a list without a selection takes the option button's write in its unused slot 0") {
    Lists dialog(Names{"a"});
    dialog.select(0, 0);
    dialog.choose(dialog.form().chkAdd[1]);
    CHECK(dialog.record(1, 0).dialog == 1);
    CHECK(dialog.record(1, 1).dialog == 0);
}

TEST_CASE("setup: an option button whose list is not there writes nothing, but the dialog text follows") {
    Dialog dialog;
    store::boardButtons = namedList({"a"});
    store::schemButtons = namedList({"b"});
    dialog.open(1);
    dialog.form().workList[1] = {};
    dialog.select(0, 0);
    dialog.choose(dialog.form().chkAdd[1]);
    CHECK_FALSE(dialog.form().workList[1].allocated());
    CHECK(dialog.form().txtPara[0].enabled());
    Dialog library;
    store::schemButtons = namedList({"b"});
    store::boardButtons = namedList({"a"});
    library.open(1);
    library.select(1, 0);
    library.select(0, 0);
    library.choose(library.form().chkAdd[2]);
    CHECK_FALSE(library.form().workList[2].allocated());
    CHECK(library.form().txtPara[1].enabled());
}

TEST_CASE(
    "setup: the schematic page's option buttons can be clicked after an EAGLE entry, and store nothing") {
    Lists dialog(listOf({entry("a", 1), entry("b", 1)}));
    dialog.select(0, 0);
    dialog.select(1, 0);
    dialog.select(2, 0);
    for (const std::size_t option : {4U, 5U, 3U}) {
        dialog.choose(dialog.form().chkAdd[option]);
        CHECK(dialog.form().chkAdd[option].value());
        for (std::size_t page = 0; page < setup::listPages; ++page) {
            CHECK(dialog.form().workList[page] == savedList(page));
            CHECK_FALSE(dialog.form().txtPara[page].enabled());
        }
    }
}

TEST_CASE("setup: the library page's option buttons store nothing, and the last one has no page at all") {
    Lists dialog(Names{"a", "b"});
    for (std::size_t page = 0; page < setup::listPages; ++page)
        dialog.select(page, 0);
    for (const std::size_t option : {7U, 8U, 6U}) {
        dialog.set(option);
        for (std::size_t page = 0; page < setup::listPages; ++page)
            CHECK(dialog.form().workList[page] == savedList(page));
    }
}

TEST_CASE("setup: no option button writes while an add routine fills the fields") {
    Lists dialog(Names{"a"});
    for (std::size_t page = 0; page < setup::listPages; ++page)
        dialog.select(page, 0);
    dialog.form().noUpdate = -1;
    for (std::size_t option = 1; option < 9; ++option)
        dialog.set(option);
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        CHECK(dialog.form().workList[page] == savedList(page));
        CHECK_FALSE(dialog.form().txtPara[page].enabled());
    }
}

TEST_CASE("setup: the dialog of a schematic entry changes only by the board page's second option button") {
    Lists dialog(listOf({entry("a", 1)}));
    dialog.select(1, 0);
    dialog.choose(dialog.form().chkAdd[4]);
    CHECK(dialog.record(1, 1).dialog == 0);
    dialog.select(0, 0);
    dialog.set(1);
    CHECK(dialog.record(1, 1).dialog == 1);
    // And there is no way back to none.
    dialog.set(0);
    CHECK(dialog.record(1, 1).dialog == 1);
}

TEST_CASE("setup: showing an entry with a dialog writes it across the pages, by the option button's click") {
    Lists dialog(listOf({entry("a", 0, 1), entry("b")}));
    dialog.select(1, 1);
    dialog.select(0, 0);
    CHECK(dialog.record(1, 2).dialog == 1);
    CHECK(dialog.form().txtPara[0].enabled());
    // The button is on already: no click, and the dialog text stays disabled.
    Lists again(listOf({entry("a", 0, 1), entry("b", 0, 1)}));
    again.select(0, 0);
    again.select(0, 1);
    CHECK_FALSE(again.form().txtPara[0].enabled());
}
