// The list pages: what list boxes and fields show, edits of the fields, moving entries, separators.
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

namespace {

/// What showEntryFields has to do for each type of entry.
struct FieldStates {
    int type;
    bool edits;
    int pathText; ///< 0 for unchanged
    std::size_t triple;
};

constexpr FieldStates fieldStates[] = {
    {0, true, 1002, 0}, {1, true, 1052, 3}, {2, false, 0, 6}, {7, false, 0, 6}};

void checkFields(frmSetup& form, std::size_t page, const FieldStates& states) {
    CHECK(form.txtTitle[page].enabled() == states.edits);
    CHECK(form.txtPath[page].enabled() == states.edits);
    CHECK(form.txtTooltip[page].enabled() == states.edits);
    CHECK(form.labPath[page].enabled() == states.edits);
    CHECK(form.labTooltip[page].enabled() == states.edits);
    CHECK(form.btnIcon[page].enabled() == states.edits);
    CHECK(form.fraCommand[page].enabled() == states.edits);
    CHECK(form.labTitle[page].enabled());
    if (states.pathText != 0)
        CHECK(form.labPath[page].caption() == store::LoadResString(states.pathText + store::languageOffset));
}

} // namespace

TEST_SUITE_BEGIN("setup/listPages");

TEST_CASE("a list box shows live records only, and removed ones are dropped from the working copy") {
    store::ButtonList list = namedList({"a", "dead", "b", "dead too", "c"});
    list[2].live = 0;
    list[4].live = 2; // anything but 1
    list[0].dialog = 2;
    list[3].rowNumber = 9;
    Lists dialog(list);
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        CHECK(dialog.rows(page) == Names{"a", "b", "c"});
        CHECK(dialog.form().workList[page].upperBound() == 3);
        CHECK(dialog.record(page, 2).name == "b");
        CHECK(dialog.record(page, 2).rowNumber == 9);
        CHECK(dialog.record(page, 0).dialog == 0);
        CHECK(savedList(page).upperBound() == 5);
    }
}

TEST_CASE("a list without a removed record stays as it is, slot 0 too") {
    store::ButtonList list = namedList({"a", "b"});
    list[0].dialog = 2;
    Lists dialog(list);
    CHECK(dialog.form().workList[0] == list);
}

TEST_CASE("a list with removed records only stays as it is, with no row") {
    store::ButtonList list = namedList({"a", "b"});
    list[1].live = 0;
    list[2].live = 0;
    Lists dialog(list);
    CHECK(dialog.rows(0).empty());
    CHECK(dialog.form().workList[0] == list);
}

TEST_CASE("a list of 2000 entries is shown whole; the 16-bit counter ends beyond 32767") {
    Dialog dialog;
    store::boardButtons.redim(2000);
    for (int row = 1; row <= 2000; ++row)
        store::boardButtons[row] = entry("b" + std::to_string(row));
    dialog.open(1);
    CHECK(dialog.rows(0).size() == 2000);
    CHECK(dialog.rows(0).back() == "b2000");
    dialog.select(0, 1999);
    dialog.click(dialog.form().btnH[0]);
    CHECK(dialog.selected(0) == 1998);
    CHECK(dialog.rows(0).back() == "b1999");
    dialog.click(dialog.form().btnAddSep[0]);
    CHECK(dialog.record(0, 2001).rowNumber == 2001);
    dialog.form().workList[0].redim(32768);
    CHECK_THROWS_AS(dialog.form().fillList(0), runtime::RuntimeError);
}

TEST_CASE("a selected entry shows in the fields of its own page") {
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        Lists dialog(Names{"a", "b"});
        dialog.select(page, 1);
        CHECK(dialog.form().txtTitle[page].text() == "b");
        CHECK(dialog.form().txtPath[page].text() == "b path");
        CHECK(dialog.form().txtTooltip[page].text() == "b tip");
        CHECK(dialog.form().txtPara[page].text() == "b question");
        for (std::size_t other = 0; other < setup::listPages; ++other)
            if (other != page)
                CHECK(dialog.blank(other));
        CHECK(dialog.form().workList[page] == namedList({"a", "b"}));
    }
}

TEST_CASE("the entry's type decides the fields, and the option buttons of the page with its number") {
    for (std::size_t page = 0; page < setup::listPages; ++page)
        for (const FieldStates& states : fieldStates) {
            CAPTURE(page);
            CAPTURE(states.type);
            Lists dialog(listOf({entry("a", states.type), entry("b", states.edits ? 2 : 0)}));
            dialog.select(page, 0);
            checkFields(dialog.form(), page, states);
            for (std::size_t option = 0; option < 9; ++option)
                CHECK(dialog.form().chkAdd[option].enabled() ==
                      (states.edits && option / 3 == states.triple / 3));
            // Another type undoes it, and leaves the other triples alone.
            dialog.select(page, 1);
            checkFields(dialog.form(), page, fieldStates[states.edits ? 2 : 0]);
            CHECK(dialog.form().chkAdd[states.triple].enabled() == states.edits);
        }
}

TEST_CASE("an entry without option buttons, on whatever page, disables the last page's") {
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        Lists dialog(listOf({entry("a", 2)}));
        for (forms::OptionButton& option : dialog.form().chkAdd)
            option.setEnabled(true);
        dialog.select(page, 0);
        for (std::size_t option = 0; option < 9; ++option)
            CHECK(dialog.form().chkAdd[option].enabled() == (option < 6));
    }
}

TEST_CASE("an entry of any other type leaves the caption of the command's label unchanged") {
    Lists dialog(listOf({entry("a", 1), entry("b", 2)}));
    dialog.select(0, 0);
    const std::string eagle = dialog.form().labPath[0].caption();
    dialog.select(0, 1);
    CHECK(dialog.form().labPath[0].caption() == eagle);
    CHECK(eagle == store::LoadResString(1052));
}

TEST_CASE("the last page's option buttons are never enabled") {
    Lists dialog(listOf({entry("a", 0), entry("b", 1), entry("c", 2)}));
    for (std::size_t page = 0; page < setup::listPages; ++page)
        for (int row = 0; row < 3; ++row) {
            dialog.select(page, row);
            for (const std::size_t option : {6U, 7U, 8U})
                CHECK_FALSE(dialog.form().chkAdd[option].enabled());
        }
}

TEST_CASE("selecting an entry sets the first page's option button, whichever list is shown") {
    for (std::size_t page = 0; page < setup::listPages; ++page)
        for (int shown = 0; shown < 3; ++shown) {
            Lists dialog(listOf({entry("a", 0, shown)}));
            dialog.select(page, 0);
            for (int option = 0; option < 9; ++option)
                CHECK(dialog.form().chkAdd[static_cast<std::size_t>(option)].value() == (option == shown));
        }
}

TEST_CASE("an entry with a dialog that no option button has ends the program") {
    for (const int dialogNumber : {9, -1}) {
        Lists dialog(listOf({entry("a", 0, dialogNumber)}));
        CHECK_FALSE(dialog.desk().event([&] { dialog.form().lstApps[0].selected(0); }));
        CHECK(dialog.desk().messageBoxes.back().text.find("'9'") != std::string::npos);
    }
}

TEST_CASE("a stored dialog of 3 to 8 sets an option button of another page, and nothing is written") {
    for (int shown = 3; shown < 9; ++shown) {
        Lists dialog(listOf({entry("a", 0, shown)}));
        dialog.select(0, 0);
        CHECK(dialog.form().chkAdd[static_cast<std::size_t>(shown)].value());
        for (std::size_t page = 0; page < setup::listPages; ++page)
            CHECK(dialog.form().workList[page] == savedList(page));
    }
}

TEST_CASE("each field writes into the selected record as it is typed") {
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        Lists dialog(Names{"a", "b", "c"});
        dialog.select(page, 1);
        dialog.act([&] { typeInto(dialog.form().txtTitle[page], "X"); });
        CHECK(dialog.record(page, 2).name == "Xb");
        dialog.enter(dialog.form().txtPath[page], "new path");
        dialog.enter(dialog.form().txtTooltip[page], "new tip");
        dialog.enter(dialog.form().txtPara[page], "new question");
        store::ButtonList expected = namedList({"a", "b", "c"});
        expected[2].name = "Xb";
        expected[2].path = "new path";
        expected[2].tooltip = "new tip";
        expected[2].param = "new question";
        CHECK(dialog.form().workList[page] == expected);
        for (std::size_t other = 0; other < setup::listPages; ++other)
            if (other != page)
                CHECK(dialog.form().workList[other] == namedList({"a", "b", "c"}));
    }
}

TEST_CASE("without a selection, or while an add routine fills the fields, a field writes nothing") {
    Lists dialog(Names{"a", "b"});
    dialog.enter(dialog.form().txtTitle[0], "x");
    CHECK(dialog.form().workList[0] == namedList({"a", "b"}));
    dialog.select(0, 0);
    dialog.form().noUpdate = -1;
    dialog.enter(dialog.form().txtTitle[0], "y");
    CHECK(dialog.form().workList[0] == namedList({"a", "b"}));
}

TEST_CASE("after an edit of the title the list box keeps the old caption until an add, remove or move") {
    for (int how = 0; how < 3; ++how) {
        Lists dialog(Names{"a", "b"});
        dialog.select(0, 0);
        dialog.enter(dialog.form().txtTitle[0], "new");
        CHECK(dialog.rows(0) == Names{"a", "b"});
        if (how == 0) {
            dialog.click(dialog.form().btnAddSep[0]);
            CHECK(dialog.rows(0)[0] == "new");
        } else if (how == 1) {
            dialog.select(0, 1);
            dialog.click(dialog.form().btnRemove[0]);
            CHECK(dialog.rows(0) == Names{"new"});
        } else {
            dialog.click(dialog.form().btnL[0]);
            CHECK(dialog.rows(0) == Names{"b", "new"});
        }
    }
}

TEST_CASE("the icon of a selected entry is drawn, a separator shows an empty preview") {
    Dialog dialog;
    dialog.desk().addIcons("C:\\kestrel\\tool.dll", 3);
    std::vector<ToolButton> entries = {entry("a"), entry("b", 2), entry("c", 1), entry("d")};
    entries[0].icon = "C:\\kestrel\\tool.dll,2";
    entries[1].icon = "C:\\kestrel\\tool.dll,1";
    entries[2].icon = "{kestrelpath}\\tool.dll,1";
    entries[3].icon = "C:\\kestrel\\tool.dll";
    store::librButtons = listOf(entries);
    dialog.open(3);
    const auto seen = [&] { return dialog.form().picView[2].picture(); };
    const auto icon = [](int index) { return desktop::World::iconPicture("C:\\kestrel\\tool.dll", index); };
    dialog.select(2, 0);
    CHECK(seen().pixel(5, 5) == icon(2).pixel(4, 4));
    CHECK(seen().pixel(0, 0) == 0xFFFFFFFF);
    dialog.select(2, 1);
    CHECK(seen().pixel(5, 5) == 0xFFFFFFFF);
    dialog.select(2, 2);
    CHECK(seen().pixel(5, 5) == icon(1).pixel(4, 4));
    // Without a comma there is nothing to draw.
    dialog.select(2, 3);
    CHECK(seen().pixel(5, 5) == 0xFFFFFFFF);
    CHECK(dialog.form().picView[0].picture().empty());
}

TEST_CASE("an entry whose icon is not there shows an empty preview, and its reference stays") {
    Dialog dialog;
    dialog.desk().addIcons("C:\\tool.dll", 1);
    std::vector<ToolButton> entries = {entry("a"), entry("b")};
    entries[0].icon = "C:\\tool.dll,0";
    entries[1].icon = "C:\\gone.dll,0";
    store::boardButtons = listOf(entries);
    dialog.open(1);
    dialog.select(0, 0);
    dialog.select(0, 1);
    CHECK(dialog.form().picView[0].picture().pixel(5, 5) == 0xFFFFFFFF);
    CHECK(dialog.record(0, 2).icon == "C:\\gone.dll,0");
}

TEST_CASE("an icon index that is no number ends the program") {
    std::vector<ToolButton> entries = {entry("a")};
    entries[0].icon = "C:\\tool.dll,x";
    Lists dialog(listOf(entries));
    CHECK_FALSE(dialog.desk().event([&] { dialog.form().lstApps[0].selected(0); }));
    CHECK(dialog.desk().messageBoxes.back().text.find("'13'") != std::string::npos);
}

TEST_CASE("removing, moving up and moving down do nothing to an empty list") {
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        Dialog dialog;
        dialog.open(1);
        dialog.click(dialog.form().btnRemove[page]);
        dialog.click(dialog.form().btnH[page]);
        dialog.click(dialog.form().btnL[page]);
        CHECK(dialog.rows(page).empty());
        CHECK_FALSE(dialog.form().workList[page].allocated());
        CHECK_FALSE(dialog.form().txtTitle[page].enabled());
        CHECK_FALSE(dialog.form().chkAdd[3 * page].value());
    }
}

TEST_CASE("an entry moves up or down with the selection, its whole record with it") {
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        Lists dialog(Names{"a", "b", "c"});
        dialog.form().workList[page][2].rowNumber = 5;
        dialog.select(page, 1);
        dialog.click(dialog.form().btnH[page]);
        CHECK(dialog.rows(page) == Names{"b", "a", "c"});
        CHECK(dialog.selected(page) == 0);
        CHECK(dialog.record(page, 1).path == "b path");
        CHECK(dialog.record(page, 1).rowNumber == 5);
        CHECK(dialog.record(page, 2).rowNumber == 0);
        CHECK(dialog.form().txtTitle[page].text() == "b");
        dialog.click(dialog.form().btnL[page]);
        dialog.click(dialog.form().btnL[page]);
        CHECK(dialog.rows(page) == Names{"a", "c", "b"});
        CHECK(dialog.selected(page) == 2);
        CHECK(dialog.record(page, 3).rowNumber == 5);
    }
}

TEST_CASE("moving the first entry up or the last one down changes nothing") {
    Lists dialog(Names{"a", "b", "c"});
    dialog.select(1, 0);
    dialog.click(dialog.form().btnH[1]);
    CHECK(dialog.selected(1) == 0);
    dialog.select(1, 2);
    dialog.click(dialog.form().btnL[1]);
    CHECK(dialog.selected(1) == 2);
    CHECK(dialog.form().workList[1] == namedList({"a", "b", "c"}));
    Lists single(Names{"a"});
    single.select(1, 0);
    single.click(single.form().btnH[1]);
    single.click(single.form().btnL[1]);
    CHECK(single.form().workList[1] == namedList({"a"}));
}

TEST_CASE("moving with no row selected does nothing") {
    Lists dialog(Names{"a", "b"});
    dialog.click(dialog.form().btnH[2]);
    dialog.click(dialog.form().btnL[2]);
    CHECK(dialog.form().workList[2] == namedList({"a", "b"}));
    CHECK(dialog.selected(2) == -1);
}

TEST_CASE("a move counts live records, also in a list that has not been compacted") {
    Lists dialog(Names{"a", "x", "b", "c"});
    // A record goes without the list being filled anew; the rows stand for a, b and c.
    dialog.form().lstApps[0].clear();
    for (const char* name : {"a", "b", "c"})
        dialog.form().lstApps[0].addItem(name);
    dialog.record(0, 2).live = 0;
    dialog.select(0, 1);
    dialog.click(dialog.form().btnL[0]);
    CHECK(dialog.rows(0) == Names{"a", "c", "b"});
}

TEST_CASE("a separator is moved and removed like any entry, its fields are disabled") {
    Lists dialog(Names{"a", "b"});
    dialog.click(dialog.form().btnAddSep[1]);
    const std::string hyphens(34, '-');
    CHECK(dialog.rows(1) == Names{"a", "b", hyphens});
    CHECK(dialog.selected(1) == 2);
    checkFields(dialog.form(), 1, fieldStates[2]);
    CHECK(dialog.form().txtTitle[1].text() == hyphens);
    dialog.click(dialog.form().btnH[1]);
    CHECK(dialog.rows(1) == Names{"a", hyphens, "b"});
    checkFields(dialog.form(), 1, fieldStates[2]);
    dialog.click(dialog.form().btnRemove[1]);
    CHECK(dialog.rows(1) == Names{"a", "b"});
}

TEST_CASE("the record of a new separator") {
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        Lists dialog(Names{"a"});
        dialog.select(page, 0);
        store::currentRoutine.clear();
        dialog.click(dialog.form().btnAddSep[page]);
        ToolButton expected;
        expected.name = std::string(34, '-');
        expected.type = 2;
        expected.live = 1;
        expected.rowNumber = 2;
        CHECK(dialog.record(page, 2) == expected);
        CHECK(dialog.record(page, 1) == entry("a"));
        CHECK(dialog.form().chkAdd[3 * page].value());
        CHECK(dialog.form().noUpdate == 0);
        CHECK(store::currentRoutine == "btnAddSep_Click");
        CHECK(dialog.form().picView[page].picture().pixel(5, 5) == 0xFFFFFFFF);
    }
}

TEST_SUITE_END();
