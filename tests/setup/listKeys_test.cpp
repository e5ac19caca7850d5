// The list pages by keyboard and clipboard.
#include "codePages.h"
#include "setup/dialog.h"
#include "store/mends.h"
#include "store/rowText.h"

using platform::Key;
using platform::KeyStroke;
using setup::Dialog;
using setup::entry;
using setup::listOf;
using setup::Lists;
using setup::Names;
using store::rowText;

namespace {

constexpr std::size_t board = 0;
constexpr std::size_t library = 2;

KeyStroke control(char32_t letter) {
    KeyStroke stroke;
    stroke.character = letter;
    stroke.control = true;
    return stroke;
}

KeyStroke key(Key named, bool withControl = false) {
    KeyStroke stroke;
    stroke.key = named;
    stroke.control = withControl;
    return stroke;
}

/// Whether the list has taken the key.
bool press(Dialog& dialog, std::size_t page, const KeyStroke& stroke) {
    bool taken = false;
    dialog.act([&] { taken = dialog.form().lstApps[page].keyPressed(stroke); });
    return taken;
}

/// Pastes a text; false if it was refused, which changes nothing.
bool paste(Dialog& dialog, std::size_t page, const std::string& text) {
    const int beeps = dialog.desk().beeps;
    const store::ButtonList before = dialog.form().workList[page];
    const int selected = dialog.selected(page);
    dialog.desk().clipboard = text;
    CHECK(press(dialog, page, control(U'v')));
    CHECK(dialog.form().noUpdate == 0);
    if (dialog.desk().beeps == beeps)
        return true;
    CHECK(dialog.form().workList[page] == before);
    CHECK(dialog.selected(page) == selected);
    return false;
}

} // namespace

TEST_SUITE_BEGIN("setup/listKeys");

TEST_CASE("Del removes the selected entry and selects the next, at the end the last") {
    Lists dialog(Names{"a", "b", "c"});
    dialog.select(board, 1);
    CHECK(press(dialog, board, key(Key::deleteKey)));
    CHECK(dialog.rows(board) == Names{"a", "c"});
    CHECK(dialog.selected(board) == 1);
    CHECK(dialog.form().txtTitle[board].text() == "c");
    CHECK(press(dialog, board, key(Key::deleteKey)));
    CHECK(dialog.selected(board) == 0);
    CHECK(press(dialog, board, key(Key::deleteKey)));
    CHECK(dialog.rows(board).empty());
    CHECK(press(dialog, board, key(Key::deleteKey)));
    CHECK(dialog.rows(library) == Names{"a", "b", "c"});
}

TEST_CASE("Del without a selection removes nothing") {
    Lists dialog(Names{"a"});
    CHECK(press(dialog, board, key(Key::deleteKey)));
    CHECK(dialog.rows(board) == Names{"a"});
}

TEST_CASE("the row that Del selects writes no choice into another page's list") {
    Lists dialog(listOf({entry("a"), entry("b", 0, 2)}));
    dialog.select(1, 0); // the page whose selection lets the third option count
    dialog.select(library, 0);
    dialog.select(board, 0);
    press(dialog, board, key(Key::deleteKey));
    CHECK(dialog.record(library, 1).dialog == 0);
    CHECK(dialog.record(board, 1).dialog == 2);
}

TEST_CASE("Ctrl and an arrow move the selected entry as the buttons do, the arrow alone is the list's own") {
    Lists dialog(Names{"a", "b", "c"});
    dialog.select(board, 0);
    CHECK(press(dialog, board, key(Key::down, true)));
    CHECK(dialog.rows(board) == Names{"b", "a", "c"});
    CHECK(dialog.selected(board) == 1);
    CHECK(press(dialog, board, key(Key::up, true)));
    CHECK(press(dialog, board, key(Key::up, true)));
    CHECK(dialog.rows(board) == Names{"a", "b", "c"});
    CHECK_FALSE(press(dialog, board, key(Key::down)));
    CHECK_FALSE(press(dialog, board, key(Key::deleteKey, true)));
    KeyStroke letter = control(U'c');
    letter.control = false;
    CHECK_FALSE(press(dialog, board, letter));
    letter = control(U'v');
    letter.alt = true; // AltGr
    CHECK_FALSE(press(dialog, board, letter));
    CHECK_FALSE(press(dialog, board, control(U'x')));
    letter = control(U'v');
    letter.shift = true;
    CHECK_FALSE(press(dialog, board, letter));
}

TEST_CASE("Ctrl+C copies the selected entry as the lines of a row, and nothing without a selection") {
    Lists dialog(Names{"a", "b"});
    dialog.desk().clipboard = "before";
    CHECK(press(dialog, board, control(U'c')));
    CHECK(dialog.desk().clipboard == "before");
    dialog.select(board, 1);
    CHECK(press(dialog, board, control(U'c')));
    CHECK(dialog.desk().clipboard == rowText(entry("b"), 2));
}

TEST_CASE("Ctrl+V adds what another list has copied behind the selected entry, and selects it") {
    Lists dialog(listOf({entry("a", 1, 1), entry("b"), entry("c")}));
    dialog.select(board, 0);
    press(dialog, board, control(U'c'));
    dialog.select(library, 1);
    CHECK(press(dialog, library, control(U'v')));
    CHECK(dialog.rows(library) == Names{"a", "b", "a", "c"});
    CHECK(dialog.selected(library) == 2);
    CHECK(dialog.form().txtTitle[library].text() == "a");
    store::ToolButton expected = entry("a", 1, 1);
    expected.rowNumber = 4; // where it was appended
    CHECK(dialog.record(library, 3) == expected);
    CHECK(dialog.rows(board) == Names{"a", "b", "c"});
}

TEST_CASE("several rows keep their order, wherever they go") {
    const std::string two = rowText(entry("x"), 1) + rowText(entry("y"), 2) + rowText(entry("z"), 3);
    for (int selected = -1; selected < 3; ++selected) {
        Lists dialog(Names{"a", "b", "c"});
        if (selected >= 0)
            dialog.select(board, selected);
        REQUIRE(paste(dialog, board, two));
        Names expected = {"a", "b", "c"};
        expected.insert(selected < 0 ? expected.end() : expected.begin() + selected + 1, {"x", "y", "z"});
        CHECK(dialog.rows(board) == expected);
        CHECK(dialog.selected(board) == (selected < 0 ? 5 : selected + 3));
        dialog.ok();
        CHECK(store::boardButtons.upperBound() == 6);
    }
}

TEST_CASE("a list that never had an entry takes rows, and so does one whose entries have all gone") {
    Dialog dialog;
    dialog.open(1);
    REQUIRE(paste(dialog, board, rowText(entry("x"), 1)));
    CHECK(dialog.rows(board) == Names{"x"});
    press(dialog, board, key(Key::deleteKey));
    REQUIRE(paste(dialog, board, rowText(entry("y"), 1) + rowText(entry("z"), 2)));
    CHECK(dialog.rows(board) == Names{"y", "z"});
    CHECK(dialog.form().txtTitle[board].text() == "z");
}

TEST_CASE("what is no row is refused with a beep and changes nothing") {
    Lists dialog(Names{"a", "b"});
    dialog.select(board, 0);
    CHECK_FALSE(paste(dialog, board, ""));
    CHECK_FALSE(paste(dialog, board, "window fit"));
    CHECK_FALSE(paste(dialog, board, std::string("\0name=a\n", 8)));
    CHECK_FALSE(paste(dialog, board, rowText(entry("x"), 1) + "2name=y\n2dialog=0\n2type=70000\n"));
    CHECK_FALSE(paste(dialog, board, rowText(entry(western("\xA7")), 1)));
    CHECK_FALSE(paste(dialog, board, std::string(1U << 20U, 'x')));
    dialog.desk().clipboard.reset();
    CHECK(press(dialog, board, control(U'v')));
    CHECK(dialog.desk().beeps == 7);
    CHECK(dialog.rows(board) == Names{"a", "b"});
}

TEST_CASE("of a text with NULs counts what stands before the first") {
    Lists dialog(Names{"a"});
    CHECK(paste(dialog, board, rowText(entry("x"), 1) + std::string(1, '\0') + "2name=broken\n"));
    CHECK(dialog.rows(board) == Names{"a", "x"});
}

TEST_CASE("more rows than 16 bits count are refused, a list full of them goes in") {
    Lists dialog(Names{"a", "b"});
    dialog.select(board, 0);
    std::string many;
    constexpr int most = 32765;
    for (int number = 0; number < most; ++number)
        many += "1name=x\n1dialog=0\n1type=0\n";
    CHECK_FALSE(paste(dialog, board, many + "1name=x\n1dialog=0\n1type=0\n"));
    CHECK(paste(dialog, library, many));
    CHECK(dialog.selected(library) == most + 1);
    CHECK_FALSE(paste(dialog, library, rowText(entry("x"), 1)));
    const int beeps = dialog.desk().beeps;
    CHECK(press(dialog, library, control(U'd')));
    CHECK(dialog.desk().beeps == beeps + 1);
}

TEST_CASE("a clipboard that another program holds is refused with a beep") {
    Lists dialog(Names{"a"});
    dialog.select(board, 0);
    dialog.desk().clipboard = rowText(entry("x"), 1);
    dialog.desk().clipboardHeldUntil = dialog.desk().now + 60000;
    CHECK(press(dialog, board, control(U'v')));
    CHECK(press(dialog, board, control(U'c')));
    CHECK(dialog.desk().beeps == 2);
    CHECK(dialog.rows(board) == Names{"a"});
}

TEST_CASE("Ctrl+D doubles the selected entry, with what no text could have brought") {
    Lists dialog(listOf({entry("a", 1, 5), entry("b")}));
    CHECK(press(dialog, board, control(U'd')));
    CHECK(dialog.rows(board) == Names{"a", "b"});
    dialog.act([&] { dialog.form().lstApps[board].setListIndex(0); });
    CHECK(press(dialog, board, control(U'd')));
    CHECK(dialog.rows(board) == Names{"a", "a", "b"});
    CHECK(dialog.selected(board) == 1);
    CHECK(dialog.record(board, 2).dialog == 5);
}

TEST_CASE("with the mends a pasted row shows its own choice") {
    Lists dialog(Names{"a"});
    store::mendsOn = true;
    CHECK(paste(dialog, library, rowText(entry("x", 1, 1), 1)));
    CHECK(dialog.form().chkAdd[7].value());
    CHECK(dialog.form().txtPara[library].enabled());
    store::mendsOn = false;
}

TEST_CASE("the help key in the dialog opens the help") {
    Lists dialog(Names{"a"});
    dialog.act([&] { dialog.form().helpRequested(); });
    CHECK(dialog.desk().helpCalls.size() == 1);
}

TEST_SUITE_END();
