// Rows of a button list as text: copied from a list, pasted from a list, a settings file, a mail.
#include "store/rowText.h"

#include "codePages.h"
#include "desktop/desktop.h"
#include "store/mends.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

namespace {

using store::rowsOf;
using store::rowText;
using store::ToolButton;

ToolButton ripUp() {
    ToolButton row;
    row.name = "Rip up";
    row.path = "ripup";
    row.tooltip = "Rip up signals";
    row.param = "Signals to rip up:";
    row.icon = "{kestrelpath}\\samples\\icons.dll,11";
    row.dialog = 1;
    row.type = 1;
    row.live = 1;
    return row;
}

std::string row(const std::string& lines) {
    return "1name=a\n1dialog=0\n1type=1\n" + lines;
}

bool refused(const std::string& text) {
    return !rowsOf(text);
}

} // namespace

TEST_SUITE_BEGIN("store/rowText");

TEST_CASE("a row has the lines of the settings file") {
    CHECK(rowText(ripUp(), 12) ==
          "12name=Rip up\r\n12path=ripup\r\n12tooltip=Rip up signals\r\n"
          "12param=Signals to rip up:\r\n"
          "12icon={kestrelpath}\\samples\\icons.dll,11\r\n12dialog=1\r\n12type=1\r\n");
}

TEST_CASE("what is copied is pasted as it was") {
    const desktop::Session session;
    const auto rows = rowsOf(rowText(ripUp(), 3));
    REQUIRE(rows);
    CHECK(*rows == std::vector<ToolButton>{ripUp()});
}

TEST_CASE(
    "several rows come in the order of the text, whatever their numbers, from a file with its sections") {
    const desktop::Session session;
    ToolButton other = ripUp();
    other.name = "Other";
    const std::string text = "[global]\r\nlanguage=10000\r\n\r\n[schem]\r\n" + rowText(ripUp(), 70000) +
                             "[libr]\r\n" + rowText(other, 1) + rowText(ripUp(), 1);
    const auto rows = rowsOf(text);
    REQUIRE(rows);
    CHECK(*rows == std::vector<ToolButton>{ripUp(), other, ripUp()});
}

TEST_CASE("a mail around the rows, its marks and blank lines do not count") {
    const desktop::Session session;
    const auto rows =
        rowsOf("Hello,\n\n> here it is:\n\n> > 4Name = a \n> > \n> >  4PATH=\t\"b c\" \n> > 4tooltip=t\n"
               "> > 4param=\n> > 4icon=\n> > 4dialog= 2\n> > 4type=0\n\nRegards\n4 ever=yours\n");
    REQUIRE(rows);
    REQUIRE(rows->size() == 1);
    CHECK(rows->front().name == "a");
    CHECK(rows->front().path == "b c");
    CHECK(rows->front().dialog == 2);
    CHECK(rows->front().type == 0);
}

TEST_CASE("what a mail has broken in two is no row") {
    const desktop::Session session;
    CHECK(refused(
        "1name=a\n1path=C:\\Program\nFiles\\a.exe\n1tooltip=\n1param=\n1icon=\n1dialog=0\n1type=0\n"));
}

TEST_CASE("a row needs a name, and numbers that there are") {
    const desktop::Session session;
    CHECK_FALSE(refused(row("")));
    CHECK(refused(""));
    CHECK(refused("Hello\n"));
    CHECK(refused("1path=a\n1dialog=0\n1type=1\n"));
    CHECK(refused("1name=\n1dialog=0\n1type=1\n"));
    CHECK(refused("1name=a\n1type=1\n"));
    CHECK(refused("1name=a\n1dialog=0\n"));
    for (const char* number : {"3", "-1", "x", "70000", "1e99"}) {
        CHECK(refused("1name=a\n1dialog=0\n1type=" + std::string(number) + "\n"));
        CHECK(refused("1name=a\n1type=0\n1dialog=" + std::string(number) + "\n"));
    }
}

TEST_CASE("one row that is none refuses them all") {
    const desktop::Session session;
    CHECK(refused(row("") + "2name=b\n2dialog=0\n2type=9\n" + rowText(ripUp(), 3)));
}

TEST_CASE("an icon that cannot be taken apart would end the program, so its row is refused") {
    const desktop::Session session;
    CHECK_FALSE(refused(row("1icon=\n")));
    CHECK_FALSE(refused(row("1icon=C:\\a.ico,0\n")));
    CHECK_FALSE(refused(row("1icon=C:\\a.ico, 3\n")));
    CHECK(refused(row("1icon=C:\\a,1,b.ico,0\n")));
    CHECK(refused(row("1icon=C:\\a.ico\n")));
    CHECK(refused(row("1icon=C:\\a.ico,x\n")));
    CHECK(refused(row("1icon=C:\\a, b.ico,0\n")));
    CHECK(refused(row("1icon=C:\\a.ico,3000000000\n")));
    CHECK(refused(row("1icon=C:\\a.ico,1,000\n")));
}

TEST_CASE("a value loses quotes that stand around all of it, and blanks around those") {
    const desktop::Session session;
    for (const char* const written : {"\"x y\"", "'x y'", " \tx y \t", " 'x y' "})
        CHECK(rowsOf(row("1path=" + std::string(written) + "\n"))->front().path == "x y");
    for (const char* const written : {"\"\"", "''", " \"\" "})
        CHECK(rowsOf(row("1path=" + std::string(written) + "\n"))->front().path.empty());
    for (const char* const written : {"xyx", "\"", "'", "'x\"", "x'"})
        CHECK(rowsOf(row("1path=" + std::string(written) + "\n"))->front().path == written);
}

TEST_CASE("what the settings file would cut is refused") {
    const desktop::Session session;
    CHECK_FALSE(refused(row("1path=" + std::string(254, 'a') + "\n")));
    CHECK(refused(row("1path=" + std::string(255, 'a') + "\n")));
    CHECK(refused(row("1tooltip=" + std::string(255, 'a') + "\n")));
}

TEST_CASE("a section sign in path or question ends a click, and is refused unless that is mended") {
    const desktop::Session session;
    for (const bool mended : {false, true}) {
        store::mendsOn = mended;
        CHECK(refused(row(western("1path=a\xA7\n"))) == !mended);
        CHECK(refused(row(western("1param=a\xA7\n"))) == !mended);
        CHECK_FALSE(refused(row(western("1tooltip=\xA7\n"))));
    }
    store::mendsOn = false;
}

TEST_CASE("a megabyte of anything is read in one go") {
    const desktop::Session session;
    constexpr std::size_t megabyte = 1U << 20U;
    CHECK(refused(std::string(megabyte, 'a')));
    CHECK(refused(std::string(megabyte, '1')));
    CHECK(refused(std::string(megabyte, '\n')));
    CHECK(refused(std::string(megabyte, '>')));
    std::string many;
    std::size_t count = 0;
    for (; many.size() < megabyte; ++count)
        many += rowText(ripUp(), 1);
    const auto rows = rowsOf(many);
    REQUIRE(rows);
    CHECK(rows->size() == count);
}

TEST_SUITE_END();
