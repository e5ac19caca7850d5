// Files that are dropped on a list of the setup.
#include "codePages.h"
#include "setup/dialog.h"
#include "store/mends.h"

using setup::entry;
using setup::listOf;
using setup::Lists;
using setup::Names;

namespace {

constexpr std::size_t schematic = 1;
using Files = std::vector<std::string>;

struct Desk : Lists {
    Desk() : Lists(listOf({entry("a", 1), entry("gap", 2)})) {
        for (const char* file : {"C:\\tools\\edit.exe", "C:\\tools\\view.BAT", "C:\\tools\\notes.txt",
                                 "C:\\tools\\bird.ico", "C:\\tools\\a, b.exe", "C:\\tools\\a, b.ico"})
            desk().writeFile(file, "content");
        desk().addIcons("C:\\tools\\edit.exe", 1);
        desk().addIcons("C:\\tools\\bird.ico", 1);
    }

    /// Drops files; false if they were refused, which changes nothing.
    bool drop(const Files& files) {
        const int beeps = desk().beeps;
        const store::ButtonList before = form().workList[schematic];
        act([&] { form().lstApps[schematic].filesDropped(files); });
        CHECK(form().noUpdate == 0);
        if (desk().beeps == beeps)
            return true;
        CHECK(desk().beeps == beeps + 1);
        CHECK(form().workList[schematic] == before);
        return false;
    }
};

} // namespace

TEST_SUITE_BEGIN("setup/dropping");

TEST_CASE("a program becomes the last entry, with its name and icon, as if its file had been chosen") {
    Desk dialog;
    CHECK(dialog.drop({"C:\\tools\\edit.exe"}));
    store::ToolButton expected;
    expected.name = "edit.exe";
    expected.path = "C:\\tools\\edit.exe";
    expected.icon = "C:\\tools\\edit.exe,0";
    expected.live = 1;
    expected.rowNumber = 3;
    CHECK(dialog.record(schematic, 3) == expected);
    CHECK(dialog.selected(schematic) == 2);
    CHECK(dialog.form().txtTitle[schematic].text() == "edit.exe");
    CHECK(dialog.form().picView[schematic].picture().pixel(5, 5) ==
          desktop::World::iconPicture("C:\\tools\\edit.exe", 0).pixel(4, 4));
}

TEST_CASE("several programs become an entry each, one that is none refuses them all") {
    Desk dialog;
    CHECK(dialog.drop({"C:\\tools\\edit.exe", "C:\\tools\\view.BAT"}));
    CHECK(dialog.rows(schematic) == Names{"a", "gap", "edit.exe", "view.BAT"});
    CHECK_FALSE(dialog.drop({"C:\\tools\\edit.exe", "C:\\tools\\notes.txt"}));
    CHECK_FALSE(dialog.drop({"C:\\tools\\edit.exe", "C:\\tools\\bird.ico"}));
}

TEST_CASE("a shortcut becomes its target, one with arguments is refused, and so is one that leads nowhere") {
    Desk dialog;
    dialog.desk().addShortcut("C:\\desk\\Editor.LNK", "C:\\tools\\edit.exe");
    dialog.desk().addShortcut("C:\\desk\\with.lnk", "C:\\tools\\edit.exe", "/new");
    dialog.desk().addShortcut("C:\\desk\\dead.lnk", "C:\\tools\\gone.exe");
    dialog.desk().addShortcut("C:\\desk\\empty.lnk", "");
    dialog.desk().addShortcut("C:\\desk\\text.lnk", "C:\\tools\\notes.txt");
    dialog.desk().writeFile("C:\\desk\\none.lnk", "not a shortcut");
    CHECK(dialog.drop({"C:\\desk\\Editor.LNK"}));
    CHECK(dialog.record(schematic, 3).name == "edit.exe");
    CHECK(dialog.record(schematic, 3).path == "C:\\tools\\edit.exe");
    for (const char* refused : {"with", "dead", "empty", "text", "none", "gone"})
        CHECK_FALSE(dialog.drop({"C:\\desk\\" + std::string(refused) + ".lnk"}));
}

TEST_CASE("an icon file becomes the selected entry's icon") {
    Desk dialog;
    CHECK_FALSE(dialog.drop({"C:\\tools\\bird.ico"})); // nothing is selected
    dialog.select(schematic, 1);
    CHECK_FALSE(dialog.drop({"C:\\tools\\bird.ico"})); // a separator has none
    dialog.select(schematic, 0);
    CHECK(dialog.drop({"C:\\tools\\bird.ico"}));
    CHECK(dialog.record(schematic, 1).icon == "C:\\tools\\bird.ico,0");
    CHECK(dialog.form().picView[schematic].picture().pixel(5, 5) ==
          desktop::World::iconPicture("C:\\tools\\bird.ico", 0).pixel(4, 4));
    CHECK_FALSE(dialog.drop({"C:\\tools\\bird.ico", "C:\\tools\\bird.ico"}));
    CHECK_FALSE(dialog.drop({"C:\\tools\\gone.ico"}));
}

TEST_CASE("a folder, another file, none and a file that is not there are refused") {
    Desk dialog;
    dialog.desk().files[desktop::pathKey("C:\\tools\\folder.exe")].directory = true;
    CHECK_FALSE(dialog.drop({}));
    CHECK_FALSE(dialog.drop({"C:\\tools"}));
    CHECK_FALSE(dialog.drop({"C:\\tools\\folder.exe"}));
    CHECK_FALSE(dialog.drop({"C:\\tools\\notes.txt"}));
    CHECK_FALSE(dialog.drop({"C:\\tools\\gone.exe"}));
    CHECK_FALSE(dialog.drop({"C:\\tools\\e?it.exe"}));
}

TEST_CASE("a list that is full takes no program") {
    Desk dialog;
    constexpr std::int32_t most = 32767;
    dialog.form().workList[schematic].redim(most - 1);
    CHECK_FALSE(dialog.drop({"C:\\tools\\edit.exe", "C:\\tools\\view.BAT"}));
}

TEST_CASE("a path with a comma, which no icon's reference may have, is refused unless that is mended") {
    Desk dialog;
    dialog.select(schematic, 0);
    CHECK_FALSE(dialog.drop({"C:\\tools\\a, b.exe"}));
    CHECK_FALSE(dialog.drop({"C:\\tools\\a, b.ico"}));
    store::mendsOn = true;
    CHECK(dialog.drop({"C:\\tools\\a, b.exe"}));
    CHECK(dialog.drop({"C:\\tools\\a, b.ico"}));
    store::mendsOn = false;
}

TEST_CASE("a section sign in a program's path is refused unless that is mended") {
    Desk dialog;
    const std::string path = western("C:\\tools\\\xA7.exe");
    dialog.desk().writeFile(path, "content");
    CHECK_FALSE(dialog.drop({path}));
    store::mendsOn = true;
    CHECK(dialog.drop({path}));
    store::mendsOn = false;
}

TEST_CASE("five hundred files are refused, a hundred programs are not") {
    Desk dialog;
    CHECK_FALSE(dialog.drop(Files(500, "C:\\tools\\edit.exe")));
    CHECK_FALSE(dialog.drop(Files(101, "C:\\tools\\edit.exe")));
    CHECK(dialog.drop(Files(100, "C:\\tools\\edit.exe")));
    CHECK(dialog.rows(schematic).size() == 102);
}

TEST_CASE("a path that the settings file would cut is refused") {
    Desk dialog;
    const auto path = [&](std::size_t size) {
        const std::string begin = "C:\\";
        const std::string end = ".exe";
        const std::string whole = begin + std::string(size - begin.size() - end.size(), 'x') + end;
        dialog.desk().writeFile(whole, "content");
        return whole;
    };
    CHECK(dialog.drop({path(252)})); // its icon has two characters more
    CHECK_FALSE(dialog.drop({path(253)}));
    CHECK_FALSE(dialog.drop({path(300)}));
    CHECK_FALSE(dialog.drop({path(40000)}));
}

TEST_CASE("programs on a server that does not answer are refused, at the cost of one wait") {
    Desk dialog;
    dialog.desk().cutOff("away");
    const std::int64_t begin = dialog.desk().now;
    CHECK_FALSE(dialog.drop({"\\\\away\\share\\a.lnk"}));
    CHECK_FALSE(dialog.drop({"\\\\away\\share\\a.exe"}));
    CHECK(dialog.desk().now - begin <= 3000);
}

TEST_SUITE_END();
