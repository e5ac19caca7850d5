#include "codePages.h"
#include "store/buttonLists.h"

#include "desktop/desktop.h"
#include "runtime/errorOf.h"
#include "store/settings.h"

#include <doctest/doctest.h>

using desktop::world;
using runtime::errorOf;
using store::boardButtons;
using store::ButtonList;
using store::EditorKind;
using store::librButtons;
using store::schemButtons;
using store::ToolButton;

namespace {

/// A fresh desktop and lists as at the start of the program.
struct Lists {
    Lists() {
        boardButtons = {};
        schemButtons = {};
        librButtons = {};
    }
    desktop::Session session;
};

ToolButton row(const std::string& name, std::int16_t live = 1) {
    ToolButton button;
    button.name = name;
    button.path = name + ".exe";
    button.live = live;
    return button;
}

ButtonList listOf(const std::vector<ToolButton>& rows) {
    ButtonList list;
    list.redim(static_cast<std::int32_t>(rows.size()));
    for (std::size_t index = 0; index < rows.size(); ++index)
        list[static_cast<std::int32_t>(index) + 1] = rows[index];
    return list;
}

/// Lines of a row in the settings file.
std::string lines(int number, const std::string& name, const std::string& type = "0") {
    const std::string digits = std::to_string(number);
    return digits + "name=" + name + "\r\n" + digits + "path=" + name + ".exe\r\n" + digits + "tooltip=\r\n" +
           digits + "param=\r\n" + digits + "icon=\r\n" + digits + "dialog=0\r\n" + digits + "type=" + type +
           "\r\n";
}

int loadError(const std::string& settings) {
    world().writeSettings(settings);
    return errorOf([] { store::loadButtonLists(0); });
}

std::int16_t saveAll() {
    return store::saveButtonLists(0);
}

} // namespace

TEST_SUITE_BEGIN("store/buttonLists");

TEST_CASE("a row comes from its seven keys") {
    const Lists lists;
    world().writeSettings("[board]\r\n1name=Fit\r\n1path=window fit\r\n1tooltip=All of it\r\n1param=How?\r\n"
                          "1icon=C:\\x.exe,2\r\n1dialog=1\r\n1type=1\r\n");
    store::loadButtonLists(0);
    REQUIRE(boardButtons.upperBound() == 1);
    const ToolButton expected = {"Fit", "window fit", "All of it", "How?", "C:\\x.exe,2", 0, 1, 1, 1};
    CHECK(boardButtons[1] == expected);
    CHECK(boardButtons[0] == ToolButton());
}

TEST_CASE("each list has its own section, and the selector names one or all") {
    const Lists lists;
    world().writeSettings("[board]\r\n" + lines(1, "b") + "[schem]\r\n" + lines(1, "s") + "[libr]\r\n" +
                          lines(1, "l") + lines(2, "m"));
    store::loadButtonLists(3);
    CHECK_FALSE(boardButtons.allocated());
    CHECK_FALSE(librButtons.allocated());
    REQUIRE(schemButtons.upperBound() == 1);
    CHECK(schemButtons[1].name == "s");
    store::loadButtonLists(4);
    CHECK(librButtons.upperBound() == 2);
    CHECK_FALSE(boardButtons.allocated());
    store::loadButtonLists(2);
    CHECK(boardButtons[1].name == "b");
    store::loadButtonLists(1); // names no list
    boardButtons = schemButtons = librButtons = {};
    store::loadButtonLists(1);
    CHECK_FALSE((boardButtons.allocated() || schemButtons.allocated() || librButtons.allocated()));
    store::loadButtonLists(0);
    CHECK((boardButtons.allocated() && schemButtons.allocated() && librButtons.allocated()));
}

TEST_CASE("the table of the kinds has their sections, selectors and lists") {
    CHECK(std::string(store::listOf(EditorKind::board).section) == "board");
    CHECK(std::string(store::listOf(EditorKind::schematic).section) == "schem");
    CHECK(std::string(store::listOf(EditorKind::library).section) == "libr");
    CHECK(store::listOf(EditorKind::board).selector == 2);
    CHECK(store::listOf(EditorKind::schematic).selector == 3);
    CHECK(store::listOf(EditorKind::library).selector == 4);
    CHECK(store::listOf(EditorKind::board).buttons == &boardButtons);
    CHECK(store::listOf(EditorKind::schematic).buttons == &schemButtons);
    CHECK(store::listOf(EditorKind::library).buttons == &librButtons);
}

TEST_CASE("an empty section leaves an unallocated list unallocated") {
    const Lists lists;
    world().writeSettings("[board]\r\n");
    store::loadButtonLists(0);
    CHECK_FALSE(boardButtons.allocated());
    CHECK(boardButtons.upperBound() == 0);
}

TEST_CASE("a missing row 1 leaves a list as it was") {
    const Lists lists;
    boardButtons = listOf({row("kept"), row("dead", 0)});
    const ButtonList before = boardButtons;
    world().writeSettings("[board]\r\n" + lines(2, "two"));
    store::loadList(EditorKind::board);
    CHECK(boardButtons == before);
}

TEST_CASE("a gap in the numbering ends the list") {
    const Lists lists;
    world().writeSettings("[board]\r\n" + lines(1, "one") + lines(2, "two") + lines(4, "four"));
    store::loadButtonLists(0);
    CHECK(boardButtons.upperBound() == 2);
}

TEST_CASE("a row with an empty name ends the list") {
    const Lists lists;
    world().writeSettings("[board]\r\n" + lines(1, "one") + lines(2, "") + lines(3, "three"));
    store::loadButtonLists(0);
    CHECK(boardButtons.upperBound() == 1);
}

TEST_CASE("a file with name1 for 1name gives an empty list") {
    const Lists lists;
    world().writeSettings("[board]\r\nname1=Fit\r\npath1=x\r\ndialog1=0\r\ntype1=0\r\n");
    store::loadButtonLists(0);
    CHECK_FALSE(boardButtons.allocated());
}

TEST_CASE("a load cuts away rows that were in memory from before, and sets every field of the others") {
    const Lists lists;
    boardButtons = listOf({row("a", 0), row("b"), row("c"), row("d")});
    boardButtons[1].rowNumber = 7;
    boardButtons[1].icon = "old,0";
    world().writeSettings("[board]\r\n" + lines(1, "one") + lines(2, "two"));
    store::loadList(EditorKind::board);
    REQUIRE(boardButtons.upperBound() == 2);
    CHECK(boardButtons[1].name == "one");
    CHECK(boardButtons[1].icon == "");
    CHECK(boardButtons[1].live == 1);
    CHECK(boardButtons[1].rowNumber == 7); // not stored, and nothing reads it
}

TEST_CASE("there is no upper limit on rows") {
    const Lists lists;
    std::string settings = "[libr]\r\n";
    for (int number = 1; number <= 150; ++number)
        settings += std::to_string(number) + "name=n\r\n" + std::to_string(number) + "dialog=0\r\n" +
                    std::to_string(number) + "type=0\r\n";
    world().writeSettings(settings);
    store::loadButtonLists(0);
    CHECK(librButtons.upperBound() == 150);
}

TEST_CASE("a dialog or type that is missing, empty or no number is a type mismatch") {
    const Lists lists;
    CHECK(loadError("[board]\r\n1name=x\r\n1type=0\r\n") == 13);
    CHECK(loadError("[board]\r\n1name=x\r\n1dialog=0\r\n") == 13);
    CHECK(loadError("[board]\r\n1name=x\r\n1dialog=\r\n1type=0\r\n") == 13);
    CHECK(loadError("[board]\r\n1name=x\r\n1dialog=one\r\n1type=0\r\n") == 13);
    CHECK(loadError("[board]\r\n1name=x\r\n1dialog=0\r\n1type=1x\r\n") == 13);
}

TEST_CASE("a dialog or type out of the 16-bit range is an overflow") {
    const Lists lists;
    CHECK(loadError("[board]\r\n1name=x\r\n1dialog=32768\r\n1type=0\r\n") == 6);
    CHECK(loadError("[board]\r\n1name=x\r\n1dialog=0\r\n1type=-32769\r\n") == 6);
    CHECK(loadError("[board]\r\n1name=x\r\n1dialog=0\r\n1type=1e500\r\n") == 6);
}

TEST_CASE("a row that fails to load stands in the list without being live, and ends the load of all lists") {
    const Lists lists;
    CHECK(loadError("[board]\r\n" + lines(1, "one") + "2name=two\r\n[schem]\r\n" + lines(1, "s")) == 13);
    REQUIRE(boardButtons.upperBound() == 2);
    CHECK(boardButtons[1].live == 1);
    CHECK(boardButtons[2].name == "two");
    CHECK(boardButtons[2].live == 0);
    CHECK_FALSE(schemButtons.allocated());
}

TEST_CASE("a dialog or type beyond the known values loads without complaint, a fraction is rounded") {
    const Lists lists;
    CHECK(loadError(
              "[board]\r\n1name=x\r\n1dialog=3\r\n1type=-7\r\n2name=y\r\n2dialog=1.5\r\n2type=0.5\r\n") == 0);
    CHECK(boardButtons[1].dialog == 3);
    CHECK(boardButtons[1].type == -7);
    CHECK(boardButtons[2].dialog == 2);
    CHECK(boardButtons[2].type == 0);
}

TEST_CASE("an index beyond a list's bounds is a subscript error") {
    const Lists lists;
    CHECK(errorOf([] { boardButtons[0].name = "x"; }) == 9);
    boardButtons.redim(1);
    CHECK(errorOf([] { boardButtons[1].name = "x"; }) == 0);
    CHECK(errorOf([] { boardButtons[2].name = "x"; }) == 9);
    CHECK(errorOf([] { boardButtons[-1].name = "x"; }) == 9);
}

TEST_CASE("a row is saved as seven keys in their order, empty ones too") {
    const Lists lists;
    ToolButton button = {"Fit", "window fit", "", "How?", "C:\\x.exe,2", 5, 1, 2, 1};
    boardButtons = listOf({button});
    CHECK(saveAll() == 0);
    CHECK(world().settings() == "[board]\r\n1name=Fit\r\n1path=window fit\r\n1tooltip=\r\n1param=How?\r\n"
                                "1icon=C:\\x.exe,2\r\n1dialog=1\r\n1type=2\r\n");
}

TEST_CASE("what is saved is loaded again") {
    const Lists lists;
    ToolButton button = {"Fit", "{kestrelpath}\\x.exe", western("tip \xE4"), "p", "x.ico,0", 0, 2, 1, 1};
    const ButtonList saved = listOf({button, row("second")});
    schemButtons = saved;
    saveAll();
    schemButtons = {};
    store::loadButtonLists(0);
    CHECK(schemButtons == saved);
}

TEST_CASE("an unallocated list is neither deleted nor written") {
    const Lists lists;
    world().writeSettings("[schem]\r\n" + lines(1, "s") + "odd=1\r\n");
    const std::string before = world().settings();
    CHECK(saveAll() == 0);
    CHECK(world().settings() == before);
}

TEST_CASE("saving replaces the whole section of an allocated list") {
    const Lists lists;
    world().writeSettings("[board]\r\n" + lines(1, "a") + lines(2, "b") + "odd=1\r\n[Unit]\r\nVisible=1\r\n");
    boardButtons = listOf({row("new")});
    saveAll();
    CHECK(world().settings() == "[Unit]\r\nVisible=1\r\n[board]\r\n" + lines(1, "new"));
}

TEST_CASE("a save for one selector touches that list alone") {
    const Lists lists;
    boardButtons = listOf({row("b")});
    schemButtons = listOf({row("s")});
    librButtons = listOf({row("l")});
    store::saveButtonLists(4);
    CHECK(world().settings() == "[libr]\r\n" + lines(1, "l"));
    store::saveButtonLists(1);
    CHECK(world().settings() == "[libr]\r\n" + lines(1, "l"));
    world().removeFile("C:\\kestrel\\kestrel.ini");
    saveAll();
    CHECK(world().settings() ==
          "[board]\r\n" + lines(1, "b") + "[schem]\r\n" + lines(1, "s") + "[libr]\r\n" + lines(1, "l"));
}

TEST_CASE("a dead row between live rows leaves a gap in the file, where the next load and save end") {
    const Lists lists;
    boardButtons = listOf({row("one"), row("two", 0), row("three")});
    saveAll();
    CHECK(world().settings() == "[board]\r\n" + lines(1, "one") + lines(3, "three"));
    boardButtons = {};
    store::loadButtonLists(0);
    CHECK(boardButtons.upperBound() == 1);
    saveAll();
    CHECK(world().settings() == "[board]\r\n" + lines(1, "one"));
}

TEST_CASE("a list whose rows are all removed is saved as nothing, and the next start finds it unallocated") {
    const Lists lists;
    world().writeSettings("[board]\r\n" + lines(1, "one"));
    store::loadButtonLists(0);
    boardButtons[1].live = 0;
    const ButtonList before = boardButtons;
    CHECK(saveAll() == 0);
    CHECK(world().settings() == "");
    store::loadList(EditorKind::board);
    CHECK(boardButtons == before);
    boardButtons = {};
    store::loadButtonLists(0);
    CHECK_FALSE(boardButtons.allocated());
}

TEST_CASE("a live of anything but 1 is not saved") {
    const Lists lists;
    boardButtons = listOf({row("one", 2), row("two", -1), row("three")});
    saveAll();
    CHECK(world().settings() == "[board]\r\n" + lines(3, "three"));
}

TEST_CASE("a name that is empty in memory is saved as an empty key, and the next load ends there") {
    const Lists lists;
    boardButtons = listOf({row("one"), row(""), row("three")});
    boardButtons[2].path = "x";
    saveAll();
    CHECK(store::getini("board", "2path") == "x");
    CHECK(world().settings().find("2name=\r\n") != std::string::npos);
    store::loadList(EditorKind::board);
    CHECK(boardButtons.upperBound() == 1);
}

TEST_CASE("a save tells of {eaglepath} in the icon or path of a live row, exact in case") {
    const Lists lists;
    const auto saved = [](const ToolButton& button) {
        boardButtons = listOf({row("first"), button, row("last")});
        return saveAll();
    };
    ToolButton button = row("x");
    CHECK(saved(button) == 0);
    button.path = "{eaglepath}\\bin\\x.exe";
    CHECK(saved(button) == -1);
    button.live = 0;
    CHECK(saved(button) == 0);
    button = row("x");
    button.icon = "C:\\{eaglepath}\\x.ico,0";
    CHECK(saved(button) == -1);
    button.icon = "{EaglePath}\\x.ico,0";
    CHECK(saved(button) == 0);
    button = row("{eaglepath}");
    button.path = "";
    button.tooltip = "{eaglepath}";
    button.param = "{eaglepath}";
    CHECK(saved(button) == 0);
}

TEST_CASE("a hit in any of the saved lists counts, one in a list that is not saved does not") {
    const Lists lists;
    boardButtons = listOf({row("b")});
    ToolButton button = row("s");
    button.path = "{eaglepath}";
    schemButtons = listOf({button});
    librButtons = listOf({row("l")});
    CHECK(saveAll() == -1);
    CHECK(store::saveButtonLists(2) == 0);
    CHECK(store::saveButtonLists(3) == -1);
}

TEST_CASE("a save to a file that cannot be written fails silently") {
    const Lists lists;
    world().writeSettings("[board]\r\n" + lines(1, "old"));
    world().file("C:\\kestrel\\kestrel.ini")->readOnly = true;
    boardButtons = listOf({row("new")});
    CHECK(saveAll() == 0);
    CHECK(world().settings() == "[board]\r\n" + lines(1, "old"));
    CHECK(world().messageBoxes.empty());
}

TEST_SUITE_END();
