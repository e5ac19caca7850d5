// The option buttons of the list pages, with their wiring across the pages.
#include "setup/dialog.h"

using setup::Dialog;
using setup::entry;
using setup::listOf;
using setup::Lists;
using setup::namedList;
using setup::Names;
using setup::savedList;

namespace {

/// As the user's click, also on a button that is disabled on the page.
void setOption(Dialog& dialog, std::size_t option) {
    dialog.act([&] { dialog.form().chkAdd[option].setValue(true); });
}

} // namespace

TEST_SUITE_BEGIN("setup/optionButtons");

TEST_CASE("the board page's first option button takes the dialog away from its own entry") {
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

TEST_CASE("the board page's second option button writes an input box into the schematic list") {
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

TEST_CASE("the board page's third option button writes a file dialog into the library list") {
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

TEST_CASE("the third option button asks for a selection on the schematic page, not on its own") {
    Lists dialog(Names{"a", "b"});
    dialog.select(0, 0);
    dialog.choose(dialog.form().chkAdd[2]);
    CHECK(dialog.form().chkAdd[2].value());
    CHECK(dialog.form().workList[2] == savedList(2));
    CHECK_FALSE(dialog.form().txtPara[1].enabled());
}

TEST_CASE("a list without a selection takes the option button's write in its unused slot 0") {
    Lists dialog(Names{"a"});
    dialog.select(0, 0);
    dialog.choose(dialog.form().chkAdd[1]);
    CHECK(dialog.record(1, 0).dialog == 1);
    CHECK(dialog.record(1, 1).dialog == 0);
}

TEST_CASE("an option button whose list is not there writes nothing, but the dialog text follows") {
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

TEST_CASE("the schematic page's option buttons can be clicked after an EAGLE entry, and store nothing") {
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

TEST_CASE("the library page's option buttons store nothing, and the last one has no page at all") {
    Lists dialog(Names{"a", "b"});
    for (std::size_t page = 0; page < setup::listPages; ++page)
        dialog.select(page, 0);
    for (const std::size_t option : {7U, 8U, 6U}) {
        setOption(dialog, option);
        for (std::size_t page = 0; page < setup::listPages; ++page)
            CHECK(dialog.form().workList[page] == savedList(page));
    }
}

TEST_CASE("no option button writes while an add routine fills the fields") {
    Lists dialog(Names{"a"});
    for (std::size_t page = 0; page < setup::listPages; ++page)
        dialog.select(page, 0);
    dialog.form().noUpdate = -1;
    for (std::size_t option = 1; option < 9; ++option)
        setOption(dialog, option);
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        CHECK(dialog.form().workList[page] == savedList(page));
        CHECK_FALSE(dialog.form().txtPara[page].enabled());
    }
}

TEST_CASE("the dialog of a schematic entry changes only by the board page's second option button") {
    Lists dialog(listOf({entry("a", 1)}));
    dialog.select(1, 0);
    dialog.choose(dialog.form().chkAdd[4]);
    CHECK(dialog.record(1, 1).dialog == 0);
    dialog.select(0, 0);
    setOption(dialog, 1);
    CHECK(dialog.record(1, 1).dialog == 1);
    // And there is no way back to none.
    setOption(dialog, 0);
    CHECK(dialog.record(1, 1).dialog == 1);
}

TEST_CASE("showing an entry with a dialog writes it across the pages, by the option button's click") {
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

TEST_SUITE_END();
