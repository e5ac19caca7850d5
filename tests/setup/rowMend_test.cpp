// Rows that cannot be read in part, in the setup, with `mend=1`. Without it they end the program or show
// nothing.
#include "setup/dialog.h"
#include "store/mends.h"

using setup::Dialog;
using setup::listPages;

namespace {

constexpr std::array<const char*, listPages> sections = {"board", "schem", "libr"};
constexpr std::array<const char*, listPages> kindFiles = {"C:\\kestrel\\brd.ico", "C:\\kestrel\\sch.ico",
                                                          "C:\\kestrel\\lbr.ico"};

/// The dialog with one row on each page: its icon and its numbers as texts.
struct Row : Dialog {
    Row(const std::string& icon, const std::string& dialog, const std::string& type, bool on = true)
        : Dialog(settings(icon, dialog, type, on)) {
        for (const char* file : kindFiles)
            desk().addIcons(file, 1);
        desk().addIcons("C:\\t\\a,b.dll", 4);
        open(1);
    }
    static std::string settings(const std::string& icon, const std::string& dialog, const std::string& type,
                                bool on) {
        std::string text = on ? "[global]\r\nmend=1\r\n" : "";
        for (const char* section : sections)
            text += "[" + std::string(section) + "]\r\n1name=a\r\n1path=p\r\n1icon=" + icon +
                    "\r\n1dialog=" + dialog + "\r\n1type=" + type + "\r\n";
        return text;
    }
    /// Pixel of the preview, once it shows.
    std::uint32_t seen(std::size_t page) {
        desk().run(50);
        return form().picView[page].picture().pixel(5, 5);
    }
    static std::uint32_t iconOf(const std::string& file, int index) {
        return desktop::World::iconPicture(file, index).pixel(4, 4);
    }
};

} // namespace

TEST_SUITE_BEGIN("setup/rowMend");

TEST_CASE("the preview of a reference that is missing or bad: on the kind's icon, off blank or an error") {
    for (const char* bad : {"", "x.ico", "x.ico,one", "C:\\no.dll,0", "C:\\t\\a,b.dll,9"})
        for (std::size_t page = 0; page < listPages; ++page) {
            CAPTURE(bad);
            Row dialog(bad, "0", "1");
            dialog.select(page, 0);
            CHECK(dialog.seen(page) == Row::iconOf(kindFiles[page], 0));
            CHECK(dialog.record(page, 1).icon == bad);
        }
    Row comma("C:\\t\\a,b.dll,3", "0", "1");
    comma.select(1, 0);
    CHECK(comma.seen(1) == Row::iconOf("C:\\t\\a,b.dll", 3));
    Row off("", "0", "1", false);
    off.select(0, 0);
    CHECK((off.seen(0) & 0xFFFFFFU) == forms::white);
    Row error("x.ico,one", "0", "1", false);
    CHECK_FALSE(error.desk().event([&] { error.form().lstApps[0].selected(0); }));
}

TEST_CASE(
    "on, an icon is chosen for a bad reference, beginning with the kind's, and a comma in its path holds") {
    for (std::size_t page = 0; page < listPages; ++page) {
        Row dialog("x.ico", "0", "1");
        dialog.select(page, 0);
        dialog.desk().chooserAnswers = {{1, u"C:\\t\\a,b.dll", 2}};
        dialog.click(dialog.form().btnIcon[page]);
        const std::string begins(kindFiles[page]);
        CHECK(
            dialog.desk().chooserCalls.at(0).file.starts_with(std::u16string(begins.begin(), begins.end())));
        CHECK(dialog.record(page, 1).icon == "C:\\t\\a,b.dll,2");
        CHECK(dialog.seen(page) == Row::iconOf("C:\\t\\a,b.dll", 2));
    }
}

TEST_CASE("a program with a comma in its path: on it is added with its icon, off it ends the program") {
    for (const bool on : {false, true}) {
        CAPTURE(on);
        Row dialog("", "0", "1", on);
        dialog.desk().fileAnswers = {"C:\\t\\a,b.dll"};
        CHECK(dialog.desk().event([&] { dialog.form().btnAdd[0].click(); }) == on);
        if (on)
            CHECK(dialog.seen(0) == Row::iconOf("C:\\t\\a,b.dll", 0));
    }
}

TEST_CASE(
    "on, a row with an unreadable type stands in the list, is moved, removed and saved as it was read") {
    Row dialog("x.ico,one", "ask", "seven");
    for (std::size_t page = 0; page < listPages; ++page) {
        CHECK(dialog.rows(page) == setup::Names{"a"});
        dialog.select(page, 0);
        CHECK(dialog.form().txtTitle[page].text() == "a");
        CHECK_FALSE(dialog.form().txtTitle[page].enabled());
        CHECK_FALSE(dialog.form().btnIcon[page].enabled());
        CHECK_FALSE(dialog.form().chkAdd[3 * page].enabled());
        dialog.click(dialog.form().btnAddEAGLE[page]);
        dialog.click(dialog.form().btnH[page]);
    }
    dialog.ok();
    for (const char* section : sections) {
        CHECK(store::getini(section, "2name") == "a");
        CHECK(store::getini(section, "2icon") == "x.ico,one");
        CHECK(store::getini(section, "2dialog") == "ask");
        CHECK(store::getini(section, "2type") == "seven");
        CHECK(store::getini(section, "1type") == "1");
    }
    CHECK(dialog.closed());
    dialog.open(1);
    dialog.select(0, 1);
    dialog.click(dialog.form().btnRemove[0]);
    dialog.ok();
    CHECK(store::getini("board", "2name").empty());
}

TEST_CASE("on, an unreadable dialog alone is 0 from then on") {
    Row dialog("", "ask", "1");
    dialog.select(2, 0);
    CHECK(dialog.form().chkAdd[6].value());
    dialog.ok();
    CHECK(store::getini("libr", "1dialog") == "0");
}

TEST_SUITE_END();
