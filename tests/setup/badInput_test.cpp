// Bad input for the setup dialog: long lists and texts, characters with a meaning of their own, a settings
// file that refuses or changes, references that do not fit.
#include "codePages.h"
#include "setup/dialog.h"

using setup::Dialog;
using setup::entry;
using setup::listOf;
using setup::namedList;
using store::ToolButton;

TEST_SUITE_BEGIN("setup/badInput");

TEST_CASE("lists that change on disk while the dialog is up are overwritten by OK and read after Cancel") {
    const std::string changed = "[board]\r\n1name=changed\r\n1path=p\r\n1dialog=0\r\n1type=1\r\n";
    Dialog dialog;
    store::boardButtons = namedList({"mine"});
    dialog.open(1);
    dialog.desk().writeSettings(changed);
    dialog.ok();
    CHECK(dialog.desk().settings().find("changed") == std::string::npos);
    CHECK(dialog.desk().settings().find("1name=mine") != std::string::npos);
    dialog.open(1);
    dialog.desk().writeSettings(changed);
    dialog.click(dialog.form().btnCancel);
    CHECK(dialog.desk().settings() == changed);
}

TEST_CASE("a settings file that cannot be written loses nothing of the lists in memory") {
    for (const bool locked : {false, true}) {
        Dialog dialog("[toolbar]\r\nautoEAGLE=0\r\n");
        store::boardButtons = namedList({"a"});
        dialog.open(1);
        desktop::File& file = *dialog.desk().file("C:\\kestrel\\kestrel.ini");
        (locked ? file.locked : file.readOnly) = true;
        const std::string before = file.content;
        dialog.select(0, 0);
        dialog.enter(dialog.form().txtTitle[0], "edited");
        dialog.ok();
        CHECK(dialog.closed());
        CHECK(dialog.desk().messageBoxes.empty());
        CHECK(store::boardButtons[1].name == "edited");
        CHECK(dialog.desk().file("C:\\kestrel\\kestrel.ini")->content == before);
    }
}

TEST_CASE("titles, paths, tips and questions are saved as they stand") {
    const std::vector<std::string> texts = {western("\xA7\xA7"), "\"quoted\"",   "a=b",
                                            "[board]",           "; no comment", std::string(300, 'n')};
    for (const std::string& text : texts) {
        Dialog dialog;
        store::boardButtons = namedList({"a"});
        dialog.open(1);
        dialog.select(0, 0);
        for (forms::TextBox* box : {&dialog.form().txtTitle[0], &dialog.form().txtPath[0],
                                    &dialog.form().txtTooltip[0], &dialog.form().txtPara[0]})
            dialog.enter(*box, text);
        dialog.ok();
        CHECK(dialog.closed());
        for (const char* key : {"1name=", "1path=", "1tooltip=", "1param="})
            CHECK(dialog.desk().settings().find(key + text + "\r\n") != std::string::npos);
    }
}

TEST_CASE("whatever stands in the field of EAGLE's path is saved, but for the blanks around it") {
    for (const std::string& text :
         {std::string(western("\xA7\xA7")), std::string("\"quoted\""), std::string("a=b"),
          std::string("[board]"), std::string(300, 'n'), std::string("\tx\t")}) {
        Dialog dialog;
        dialog.open(0);
        dialog.enter(dialog.form().txtEAGLE, "  " + text + "  ");
        dialog.ok();
        CHECK(dialog.closed());
        CHECK(dialog.desk().messageBoxes.empty());
        CHECK(dialog.desk().settings().find("EAGLEpath=" + text + "\r\n") != std::string::npos);
    }
}

TEST_CASE("an entry with an empty title is saved, and the list ends there when it is read again") {
    Dialog dialog;
    store::boardButtons = namedList({"a", "b", "c"});
    dialog.open(1);
    dialog.select(0, 1);
    dialog.enter(dialog.form().txtTitle[0], "");
    dialog.ok();
    CHECK(dialog.desk().settings().find("2name=\r\n2path=b path") != std::string::npos);
    CHECK(dialog.desk().settings().find("3name=c") != std::string::npos);
    store::boardButtons = {};
    store::loadButtonLists(0);
    CHECK(store::boardButtons.upperBound() == 1);
}

TEST_CASE("three lists of 40 buttons are saved and read back the same") {
    Dialog dialog;
    for (store::ButtonList* list : {&store::boardButtons, &store::schemButtons, &store::librButtons}) {
        list->redim(40);
        for (int row = 1; row <= 40; ++row)
            (*list)[row] = entry("b" + std::to_string(row), row % 3, row % 2);
    }
    const store::ButtonList before = store::boardButtons;
    dialog.open(1);
    dialog.ok();
    store::boardButtons = {};
    store::loadButtonLists(0);
    CHECK(store::boardButtons == before);
}

TEST_CASE("a list of 2000 buttons is edited and committed") {
    Dialog dialog;
    store::boardButtons.redim(2000);
    for (int row = 1; row <= 2000; ++row)
        store::boardButtons[row] = entry("b" + std::to_string(row));
    dialog.open(1);
    dialog.select(0, 1000);
    dialog.click(dialog.form().btnRemove[0]);
    dialog.select(0, 1998);
    dialog.click(dialog.form().btnH[0]);
    dialog.click(dialog.form().btnAddEAGLE[0]);
    // Written by Windows in a moment, but by the simulated file only slowly.
    dialog.desk().writeSettings("");
    dialog.desk().file("C:\\kestrel\\kestrel.ini")->readOnly = true;
    dialog.ok();
    REQUIRE(store::boardButtons.upperBound() == 2000);
    CHECK(store::boardButtons[1998].name == "b2000");
    CHECK(store::boardButtons[1999].name == "b1999");
    CHECK(store::boardButtons[2000].name == "EAGLE Command");
}

TEST_CASE("a name of 300 characters is kept whole in the dialog, and read back as its first 254") {
    const std::string name(300, 'n');
    Dialog dialog;
    store::librButtons = namedList({"a"});
    dialog.open(3);
    dialog.select(2, 0);
    dialog.enter(dialog.form().txtTitle[2], name);
    dialog.click(dialog.form().btnAddSep[2]);
    CHECK(dialog.rows(2)[0] == name);
    dialog.ok();
    CHECK(store::librButtons[1].name == name);
    store::loadButtonLists(0);
    CHECK(store::librButtons[1].name == name.substr(0, 254));
}

TEST_CASE("what a text with quotes or blanks around it loses, it loses in the settings file only") {
    Dialog dialog;
    store::boardButtons = namedList({"a"});
    dialog.open(1);
    dialog.select(0, 0);
    dialog.enter(dialog.form().txtPath[0], "\"C:\\my tools\\x.exe\"");
    dialog.enter(dialog.form().txtTooltip[0], "  tip  ");
    dialog.ok();
    CHECK(store::boardButtons[1].path == "\"C:\\my tools\\x.exe\"");
    CHECK(store::boardButtons[1].tooltip == "  tip  ");
    store::loadButtonLists(0);
    CHECK(store::boardButtons[1].path == "C:\\my tools\\x.exe");
    CHECK(store::boardButtons[1].tooltip == "tip");
}

TEST_CASE("an icon reference without a comma is shown, moved, saved and removed without a drawing") {
    ToolButton made = entry("a");
    made.icon = "C:\\tool.dll";
    Dialog dialog;
    dialog.desk().addIcons("C:\\tool.dll", 1);
    store::schemButtons = listOf({made, entry("b")});
    dialog.open(2);
    dialog.select(1, 0);
    dialog.click(dialog.form().btnL[1]);
    CHECK(dialog.record(1, 2).icon == "C:\\tool.dll");
    dialog.ok();
    CHECK(dialog.desk().settings().find("2icon=C:\\tool.dll\r\n") != std::string::npos);
    dialog.open(2);
    dialog.select(1, 1);
    dialog.click(dialog.form().btnRemove[1]);
    CHECK(dialog.rows(1) == setup::Names{"b"});
}

TEST_CASE("a comma in the path of a chosen program or icon ends the program: references are split there") {
    Dialog dialog;
    dialog.open(1);
    dialog.desk().fileAnswers = {"C:\\one, two\\tool.exe"};
    CHECK_FALSE(dialog.desk().event([&] { dialog.form().btnAdd[0].click(); }));
    CHECK(dialog.desk().messageBoxes.back().text.find("'13'") != std::string::npos);
    Dialog icon;
    store::boardButtons = namedList({"a"});
    icon.open(1);
    icon.select(0, 0);
    icon.desk().chooserAnswers.push_back({1, u"C:\\one, two\\tool.ico", 0});
    CHECK_FALSE(icon.desk().event([&] { icon.form().btnIcon[0].click(); }));
    CHECK(icon.desk().messageBoxes.back().text.find("'13'") != std::string::npos);
}

TEST_CASE("a refused OK may be tried again and again without losing an edit") {
    Dialog dialog;
    store::boardButtons = namedList({"a", "b", "c"});
    dialog.open(1);
    dialog.select(0, 1);
    dialog.enter(dialog.form().txtTitle[0], "edited");
    dialog.enter(dialog.form().txtPath[0], "{eaglepath}\\x.exe");
    dialog.click(dialog.form().btnAddSep[2]);
    const setup::PerPage<store::ButtonList> edited = dialog.form().workList;
    for (int round = 0; round < 5; ++round) {
        // By turns the first and the second check.
        dialog.act([&] { dialog.form().chkEAGLE.setValue(round % 2); });
        dialog.ok();
        CHECK_FALSE(dialog.closed());
        CHECK(dialog.form().workList == edited);
    }
    CHECK(dialog.desk().messageBoxes.size() == 5);
}

TEST_CASE("a settings file that went away is written anew") {
    Dialog dialog("[toolbar]\r\nlastBoard=C:\\x.brd\r\n[board]\r\n1name=a\r\n1dialog=0\r\n1type=1\r\n");
    dialog.open(1);
    dialog.desk().removeFile("C:\\kestrel\\kestrel.ini");
    dialog.ok();
    CHECK(dialog.closed());
    CHECK(dialog.desk().settings().find("1name=a") != std::string::npos);
}

TEST_SUITE_END();
