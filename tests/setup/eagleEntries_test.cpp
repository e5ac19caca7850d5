// Entries that type an EAGLE command, and the choice of an icon.
#include "setup/dialog.h"

#include "store/pathTokens.h"
#include "store/textCatalogue.h"

using setup::Dialog;
using setup::entry;
using setup::listOf;
using setup::namedList;
using setup::Names;
using store::ToolButton;

namespace {

struct IconFile {
    const char* file;
    std::size_t option;
};

constexpr std::array<IconFile, 3> iconFiles = {
    {{"C:\\kestrel\\brd.ico", 0}, {"C:\\kestrel\\sch.ico", 3}, {"C:\\kestrel\\lbr.ico", 6}}};

/// The dialog with one entry that has an icon, selected on a page.
struct OneIcon : Dialog {
    explicit OneIcon(const std::string& icon, std::size_t shown = 0) : page(shown) {
        desk().addIcons("C:\\tools\\old.dll", 2);
        desk().addIcons("C:\\tools\\new.dll", 6);
        ToolButton made = entry("a");
        made.icon = icon;
        *store::listOf(static_cast<store::EditorKind>(page)).buttons = listOf({made});
        open(static_cast<int>(page) + 1);
        select(page, 0);
        desk().run(50);
    }
    void answer(int result, const std::u16string& file, int index) {
        desk().chooserAnswers.push_back({result, file, index});
    }
    std::uint32_t seen() { return form().picView[page].picture().pixel(5, 5); }

    std::size_t page;
};

std::uint32_t pixelOf(const std::string& file, int index) {
    return desktop::World::iconPicture(file, index).pixel(4, 4);
}

} // namespace

TEST_SUITE_BEGIN("setup/eagleEntries");

TEST_CASE("an EAGLE command on an empty list lands in slot 1, is selected and shown with its own label") {
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        CAPTURE(page);
        Dialog dialog;
        dialog.desk().addIcons(iconFiles[page].file, 1);
        dialog.open(static_cast<int>(page) + 1);
        store::currentRoutine.clear();
        dialog.click(dialog.form().btnAddEAGLE[page]);
        ToolButton expected;
        expected.name = "EAGLE Command";
        expected.icon = std::string(iconFiles[page].file) + ",0";
        expected.type = 1;
        expected.live = 1;
        expected.rowNumber = 1;
        REQUIRE(dialog.form().workList[page].upperBound() == 1);
        CHECK(dialog.record(page, 1) == expected);
        CHECK(dialog.selected(page) == 0);
        CHECK(dialog.rows(page) == Names{"EAGLE Command"});
        CHECK(dialog.form().labPath[page].caption() == store::LoadResString(1052));
        CHECK(dialog.form().txtTitle[page].text() == "EAGLE Command");
        CHECK(dialog.form().txtPath[page].text().empty());
        CHECK(dialog.form().txtPath[page].enabled());
        CHECK(dialog.form().chkAdd[iconFiles[page].option].value());
        for (std::size_t option = 0; option < 9; ++option)
            CHECK(dialog.form().chkAdd[option].enabled() == (option / 3 == 1));
        CHECK(dialog.form().noUpdate == 0);
        CHECK_FALSE(dialog.form().picView[page].visible());
        CHECK(dialog.form().Timer1[page].enabled());
        CHECK(dialog.form().picView[page].picture().pixel(5, 5) == pixelOf(iconFiles[page].file, 0));
        CHECK(dialog.desk().fileDialogs.empty());
        CHECK(store::currentRoutine == "btnAdd_Click");
    }
}

TEST_CASE("an EAGLE command goes behind the other entries, which stay as they are") {
    Dialog dialog;
    store::schemButtons = namedList({"a", "b"});
    dialog.open(2);
    dialog.select(1, 0);
    dialog.click(dialog.form().btnAddEAGLE[1]);
    CHECK(dialog.rows(1) == Names{"a", "b", "EAGLE Command"});
    CHECK(dialog.selected(1) == 2);
    CHECK(dialog.record(1, 3).rowNumber == 3);
    CHECK(dialog.record(1, 1) == entry("a"));
    CHECK(dialog.record(1, 2) == entry("b"));
    dialog.enter(dialog.form().txtPath[1], "drc");
    CHECK(dialog.record(1, 3).path == "drc");
}

TEST_CASE("the title of an EAGLE command is the same in German and in English") {
    for (const int offset : {0, 10000}) {
        Dialog dialog;
        store::languageOffset = offset;
        dialog.open(1);
        dialog.click(dialog.form().btnAddEAGLE[0]);
        CHECK(dialog.record(0, 1).name == "EAGLE Command");
        CHECK(dialog.form().labPath[0].caption() == store::LoadResString(1052 + offset));
    }
}

TEST_CASE("the icon chooser starts with the entry's icon and is owned by the form") {
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        OneIcon dialog("C:\\tools\\old.dll,1", page);
        dialog.answer(1, u"C:\\tools\\new.dll", 4);
        dialog.click(dialog.form().btnIcon[page]);
        REQUIRE(dialog.desk().chooserCalls.size() == 1);
        CHECK(dialog.desk().chooserCalls[0].owner == dialog.form().window());
        CHECK(dialog.desk().chooserCalls[0].file == u"C:\\tools\\old.dll");
        CHECK(dialog.desk().chooserCalls[0].index == 1);
        CHECK(dialog.record(page, 1).icon == "C:\\tools\\new.dll,4");
        CHECK(dialog.seen() == pixelOf("C:\\tools\\new.dll", 4));
        CHECK_FALSE(dialog.form().picView[page].visible());
        dialog.desk().run(50);
        CHECK(dialog.form().picView[page].visible());
        CHECK_FALSE(dialog.form().Timer1[page].enabled());
    }
}

TEST_CASE("a cancelled icon chooser leaves entry and preview as they were") {
    OneIcon dialog("C:\\tools\\old.dll,1");
    dialog.answer(0, u"C:\\tools\\new.dll", 4);
    dialog.click(dialog.form().btnIcon[0]);
    CHECK(dialog.record(0, 1).icon == "C:\\tools\\old.dll,1");
    CHECK(dialog.seen() == pixelOf("C:\\tools\\old.dll", 1));
    CHECK(dialog.form().picView[0].visible());
    CHECK_FALSE(dialog.form().Timer1[0].enabled());
}

TEST_CASE("the tokens of an icon are replaced for the chooser, and gone when one was chosen") {
    OneIcon dialog("{kestrelpath}\\brd.ico,0");
    dialog.answer(1, u"C:\\kestrel\\brd.ico", 0);
    dialog.click(dialog.form().btnIcon[0]);
    CHECK(dialog.desk().chooserCalls[0].file == u"C:\\kestrel\\brd.ico");
    CHECK(dialog.record(0, 1).icon == "C:\\kestrel\\brd.ico,0");
}

TEST_CASE("a token of an icon that is not in lower case stays, EAGLE's folder drops out") {
    OneIcon upper("{KestrelPath}\\brd.ico,0");
    upper.answer(0, u"", 0);
    upper.click(upper.form().btnIcon[0]);
    CHECK(upper.desk().chooserCalls[0].file == u"{KestrelPath}\\brd.ico");
    OneIcon eagle("{eaglepath}\\bin\\eagle.exe,0");
    eagle.answer(0, u"", 0);
    eagle.click(eagle.form().btnIcon[0]);
    CHECK(eagle.desk().chooserCalls[0].file == u"\\bin\\eagle.exe");
    CHECK(eagle.record(0, 1).icon == "{eaglepath}\\bin\\eagle.exe,0");
}

TEST_CASE("an icon that cannot be drawn is stored all the same, the preview keeps the old one") {
    OneIcon dialog("C:\\tools\\old.dll,1");
    dialog.answer(1, u"C:\\tools\\none.dll", 3);
    dialog.click(dialog.form().btnIcon[0]);
    CHECK(dialog.record(0, 1).icon == "C:\\tools\\none.dll,3");
    CHECK(dialog.seen() == pixelOf("C:\\tools\\old.dll", 1));
}

TEST_CASE("an entry without an icon opens the chooser with no file") {
    OneIcon dialog("");
    dialog.answer(0, u"", 0);
    dialog.click(dialog.form().btnIcon[0]);
    REQUIRE(dialog.desk().chooserCalls.size() == 1);
    CHECK(dialog.desk().chooserCalls[0].file.empty());
}

TEST_CASE("after a removal an icon can be chosen for no row, with no lasting effect") {
    for (const std::size_t page : {0U, 1U}) {
        OneIcon dialog("C:\\tools\\old.dll,1", page);
        dialog.click(dialog.form().btnAddSep[page]);
        dialog.select(page, 0);
        dialog.click(dialog.form().btnRemove[page]);
        REQUIRE(dialog.form().btnIcon[page].acceptsInput());
        dialog.answer(1, u"C:\\tools\\new.dll", 4);
        dialog.click(dialog.form().btnIcon[page]);
        CHECK(dialog.desk().chooserCalls[0].file.empty());
        CHECK(dialog.record(page, 0).icon == "C:\\tools\\new.dll,4");
        CHECK(dialog.record(page, 1).icon.empty());
        dialog.ok();
        CHECK(dialog.desk().settings().find("new.dll") == std::string::npos);
    }
}

TEST_CASE("an icon button of a list without any entry ever has no record to start from") {
    // A cancelled add enables the button on an empty list.
    Dialog dialog;
    dialog.open(1);
    dialog.click(dialog.form().btnAdd[0]);
    REQUIRE(dialog.form().btnIcon[0].acceptsInput());
    dialog.desk().chooserAnswers.push_back({1, u"C:\\tools\\new.dll", 4});
    dialog.click(dialog.form().btnIcon[0]);
    CHECK_FALSE(dialog.form().workList[0].allocated());
}

TEST_CASE("choosing an icon for a reference without a comma ends the program") {
    OneIcon dialog("C:\\tools\\old.dll");
    CHECK_FALSE(dialog.desk().event([&] { dialog.form().btnIcon[0].click(); }));
    CHECK(dialog.desk().messageBoxes.back().text.find("'9'") != std::string::npos);
}

TEST_CASE("an icon cannot be chosen for a separator") {
    OneIcon dialog("C:\\tools\\old.dll,1");
    dialog.click(dialog.form().btnAddSep[0]);
    dialog.click(dialog.form().btnIcon[0]);
    CHECK(dialog.desk().chooserCalls.empty());
}

TEST_SUITE_END();
