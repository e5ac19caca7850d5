// Rows that cannot be read, or not be told apart, in toolbars and settings file, with `mend=1` and without.
#include "mending.h"
#include "store/iconExtract.h"
#include "store/iconReference.h"
#include "toolbars/pictures.h"

#include <doctest/doctest.h>

#include <deque>
#include <string>

using store::EditorKind;
using store::IconReference;

namespace {

std::string row(int number, const std::string& name, const std::string& icon, const std::string& dialog = "0",
                const std::string& type = "1") {
    const std::string n = std::to_string(number);
    return n + "name=" + name + "\r\n" + n + "path=p\r\n" + n + "tooltip=\r\n" + n + "param=\r\n" + n +
           "icon=" + icon + "\r\n" + n + "dialog=" + dialog + "\r\n" + n + "type=" + type + "\r\n";
}

/// A program with a board's list; the settings file is written before the start.
struct Rows : desktop::Program {
    Rows(bool on, const std::string& rows) : list(rows) {
        desk().startProcess("eagle.exe");
        desk().addIcons("C:\\t\\x.dll", 4);
        desk().addIcons("C:\\t\\a,b.dll", 4);
        desk().writeSettings(std::string(on ? "[global]\r\nmend=1\r\n" : "") + "[board]\r\n" + rows);
        desk().openWindow("Board - x.brd - EAGLE");
    }
    bool run() {
        if (!start())
            return false;
        ticks(1);
        return !desk().ended;
    }
    const std::deque<forms::ToolbarButton>& buttons() {
        return toolbar(EditorKind::board, 1).toolbar.buttons();
    }
    std::uint32_t seen(int number) {
        return toolbar(EditorKind::board, 1).ImageList1.picture(number).pixel(8, 8);
    }
    static std::uint32_t iconOf(const std::string& file, int index) {
        return desktop::World::iconPicture(file, index).pixel(8, 8);
    }
    std::uint32_t ofKind() { return toolbars::fixedPictures().picture("BRD").pixel(8, 8); }

    std::string list;
};

} // namespace

TEST_SUITE_BEGIN("toolbars/rowMend");

TEST_CASE("on, a reference is split at its last comma, off at its first") {
    const desktop::Session session;
    store::mendsOn = true;
    CHECK(IconReference::parse("C:\\t\\a,b.dll,3") == IconReference{"C:\\t\\a,b.dll", 3});
    CHECK(IconReference::parse(",,2") == IconReference{",", 2});
    CHECK(IconReference::parse("x.ico,1") == IconReference{"x.ico", 1});
    for (const char* bad : {"", "x.ico", "x.ico,", "x.ico,one", "x.ico,99999999999", "x.ico,1,"})
        CHECK_FALSE(IconReference::readable(bad));
    store::mendsOn = false;
    CHECK(IconReference::parse("x.ico,1,9") == IconReference{"x.ico", 1});
    CHECK(IconReference::readable("x.ico,1,").has_value());
}

TEST_CASE("icons that cannot be read or had: on the kind's picture, off an error or the last good icon") {
    for (const char* bad : {"", "C:\\t\\x.dll", "C:\\t\\x.dll,", "C:\\t\\x.dll,one",
                            "C:\\t\\x.dll,99999999999", "C:\\t\\no.dll,0", "C:\\t\\x.dll,77", ",0"}) {
        CAPTURE(bad);
        Rows program(true,
                     row(1, "a", "C:\\t\\x.dll,1") + row(2, "b", bad) + row(3, "c", "C:\\t\\a,b.dll,2"));
        REQUIRE(program.run());
        REQUIRE(program.buttons().size() == 4);
        CHECK(program.seen(1) == Rows::iconOf("C:\\t\\x.dll", 1));
        CHECK(program.seen(2) == program.ofKind());
        CHECK(program.seen(3) == Rows::iconOf("C:\\t\\a,b.dll", 2));
    }
    for (const char* bad : {"C:\\t\\x.dll", "C:\\t\\x.dll,one", "C:\\t\\a,b.dll,2"})
        CHECK_FALSE(Rows(false, row(1, "a", bad)).run());
    Rows last(false, row(1, "a", "C:\\t\\x.dll,1") + row(2, "b", "C:\\t\\no.dll,0"));
    REQUIRE(last.run());
    CHECK(last.seen(2) == Rows::iconOf("C:\\t\\x.dll", 1));
}

TEST_CASE("a dialog that cannot be read: on it counts as 0, off it ends the program") {
    for (const char* bad : {"", "ask", "70000", "1x"}) {
        CAPTURE(bad);
        Rows program(true, row(1, "a", "", bad) + row(2, "b", "", "1"));
        REQUIRE(program.run());
        CHECK(program.buttons().size() == 3);
        CHECK(store::boardButtons[1].dialog == 0);
        CHECK(store::boardButtons[1].type == 1);
        CHECK_FALSE(store::boardButtons[1].asRead);
        CHECK(store::boardButtons[2].dialog == 1);
        CHECK_FALSE(Rows(false, row(1, "a", "", bad)).run());
    }
}

TEST_CASE("a type that cannot be read: on the row is in no toolbar and is saved as it was read") {
    for (const auto& [dialog, type] : {std::pair{"0", "one"}, std::pair{"ask", "70000"}, std::pair{"2", ""},
                                       std::pair{"", "1;"}, std::pair{"1", "-40000"}}) {
        CAPTURE(type);
        const std::string rows = row(1, "a", "C:\\t\\x.dll,1") + row(2, "odd", "bad", dialog, type) +
                                 row(3, "c", "C:\\t\\x.dll,2");
        Rows program(true, rows);
        REQUIRE(program.run());
        REQUIRE(program.buttons().size() == 3);
        CHECK(program.buttons()[0].key == "a1");
        CHECK(program.buttons()[1].key == "c3");
        // Pictures are counted as the rows that stand in the toolbar.
        CHECK(program.buttons()[1].image == 2);
        CHECK(program.seen(2) == Rows::iconOf("C:\\t\\x.dll", 2));
        store::saveButtonLists(0);
        CHECK(program.desk().settings().ends_with("[board]\r\n" + rows));
        // Read again, a row that has been mended by hand is one like any other.
        program.desk().writeSettings("[board]\r\n" + row(1, "a", "") + row(2, "odd", ""));
        store::loadList(EditorKind::board);
        CHECK_FALSE(store::boardButtons[2].asRead);
        CHECK_FALSE(Rows(false, rows).run());
    }
}

TEST_CASE("on, a type that can be read but is none stays an ordinary button") {
    Rows program(true, row(1, "a", "", "0", "-1") + row(2, "b", "", "0", "7"));
    REQUIRE(program.run());
    CHECK(program.buttons().size() == 3);
}

TEST_CASE("two rows with the same key: off the end of the program, on the second gets one of its own") {
    std::string rows;
    rows += row(1, "a1", "");
    for (int number = 2; number <= 10; ++number)
        rows += row(number, "x", "");
    rows += row(11, "a", "");
    for (const bool on : offAndOn) {
        CAPTURE(on);
        Rows program(on, rows);
        CHECK(program.run() == on);
        if (!on) {
            CHECK(program.desk().messageBoxes.at(0).text.starts_with("Run-time error '35602'"));
            continue;
        }
        REQUIRE(program.buttons().size() == 12);
        CHECK(program.buttons()[0].key == "a11");
        CHECK(program.buttons()[10].key == "a11'");
        CHECK(program.buttons()[10].description == "a");
        CHECK(program.buttons()[11].key == "Config");
    }
}

TEST_CASE("on, three rows with the same key get three") {
    // "a11" in row 1, "a1" in row 11, "a" in row 111.
    std::string rows = row(1, "a11", "");
    for (int number = 2; number <= 111; ++number)
        rows += row(number, number == 11 ? "a1" : number == 111 ? "a" : "x", "");
    Rows program(true, rows);
    REQUIRE(program.run());
    CHECK(program.buttons().size() == 112);
    CHECK(program.buttons()[110].key == "a111''");
}

TEST_CASE("the chooser for a reference that cannot be read: on the kind's icon, off an error") {
    for (const char* bad : {"", "x.ico", "x.ico,one"}) {
        desktop::Session session;
        store::mendsOn = true;
        desktop::world().chooserAnswers = {{0, u"", 0}};
        CHECK(store::chooseIconFile(bad, {}, store::kindIcon(EditorKind::library)).empty());
        CHECK(desktop::world().chooserCalls.at(0).file.starts_with(u"C:\\kestrel\\lbr.ico"));
    }
    const desktop::Session session;
    CHECK_THROWS(store::chooseIconFile("x.ico", {}, store::kindIcon(EditorKind::library)));
    desktop::world().chooserAnswers = {{1, u"C:\\a,b.dll", 5}};
    store::mendsOn = true;
    CHECK(store::chooseIconFile("C:\\a,b.dll,2", {}) == "C:\\a,b.dll,5");
    CHECK(desktop::world().chooserCalls.at(0).index == 2);
}

TEST_SUITE_END();
