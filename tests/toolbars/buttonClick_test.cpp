// What a click on a toolbar button does.
#include "codePages.h"
#include "desktop/program.h"
#include "toolbars/buttonTag.h"
#include "toolbars/describedButton.h"

#include <doctest/doctest.h>

#include <string>

using desktop::Program;
using desktop::world;
using platform::HWND;
using store::EditorKind;

namespace {

/// A toolbar in an editor window, with one button that the test describes.
struct Host : Program {
    explicit Host(EditorKind editorKind = EditorKind::board) : kind(editorKind) {
        static const char* const titles[] = {"Board - x.brd - EAGLE", "Schematic - x.sch - EAGLE",
                                             "Library - x.lbr - EAGLE"};
        desk().startProcess("eagle.exe");
        REQUIRE(start());
        host = desk().openWindow(titles[static_cast<int>(kind)]);
        ticks(1);
        desk().calls.clear();
    }

    bool click(const std::string& path, int dialog, const std::string& param, int type) {
        return clickTag(toolbars::buttonTag(toolbars::describedButton(path, dialog, param, type)), "x1");
    }
    bool clickTag(const std::string& tag, const std::string& key) {
        forms::ToolbarButton button;
        button.key = key;
        button.tag = tag;
        return desk().event([&] { toolbar(kind, 1).Toolbar_ButtonClick(button); });
    }
    std::string typed() { return desk().typed.empty() ? "" : desk().typed.back().text(); }

    EditorKind kind;
    HWND host;
};

} // namespace

TEST_SUITE_BEGIN("toolbars/buttonClick");

TEST_CASE("a click on the real button of a toolbar types its command and Enter into the host") {
    Program program;
    program.desk().startProcess("eagle.exe");
    program.desk().writeSettings("[board]\r\n1name=Fit\r\n1path=window fit\r\n1dialog=0\r\n1type=1\r\n");
    REQUIRE(program.start());
    const HWND board = program.desk().openWindow("Board - x.brd - EAGLE");
    program.ticks(1);
    program.desk().openWindow("another program");
    program.desk().event([&] { program.toolbar(EditorKind::board, 1).toolbar.clickButton(0); });
    REQUIRE(program.desk().typed.size() == 1);
    CHECK(program.desk().typed[0].text() == "window fit\n");
    CHECK(program.desk().typed[0].window == board);
    CHECK(program.desk().typed[0].wait);
}

TEST_CASE("an EAGLE command is typed after the host has been brought to the top and restored") {
    Host program;
    program.click("drc", 0, "", 1);
    const std::string number = std::to_string(static_cast<std::uintptr_t>(program.host));
    REQUIRE(program.desk().calls.size() == 2);
    CHECK(program.desk().calls[0] == "BringWindowToTop " + number);
    CHECK(program.desk().calls[1] == "ShowWindow " + number + " 9");
    CHECK(program.typed() == "drc\n");
}

TEST_CASE("an input box gives the argument, with one blank before it") {
    Host program;
    program.desk().inputAnswers = {"abc"};
    program.click("run ulp", 1, "Name?", 1);
    REQUIRE(program.desk().inputBoxes.size() == 1);
    CHECK(program.desk().inputBoxes[0].prompt == "Name?");
    CHECK(program.desk().inputBoxes[0].title == "Input Parameter");
    CHECK(program.typed() == "run ulp abc\n");
}

TEST_CASE("Cancel in the input box, or an empty entry, ends the click") {
    Host program;
    program.click("run ulp", 1, "Name?", 1);
    program.desk().inputAnswers = {""};
    program.click("run ulp", 1, "Name?", 1);
    CHECK(program.desk().inputBoxes.size() == 2);
    CHECK(program.desk().typed.empty());
    CHECK(program.desk().calls.empty());
}

TEST_CASE("the file dialog gives the argument; it starts with all files and belongs to the toolbar") {
    Host program;
    program.desk().fileAnswers = {"C:\\ulp\\my tool.ulp"};
    program.click("run", 2, "Which ULP?", 1);
    REQUIRE(program.desk().fileDialogs.size() == 1);
    const desktop::FileDialog& dialog = program.desk().fileDialogs[0];
    CHECK_FALSE(dialog.save);
    CHECK(dialog.file == "*.*");
    CHECK(dialog.title == "Which ULP?");
    CHECK(dialog.owner == program.toolbar(EditorKind::board, 1).window());
    CHECK(program.typed() == "run C:\\ulp\\my tool.ulp\n");
}

TEST_CASE("Cancel in the file dialog ends the click; the start value is not taken for a result") {
    Host program;
    program.desk().fileAnswers = {std::nullopt};
    program.click("run", 2, "Which?", 1);
    CHECK(program.desk().fileDialogs.size() == 1);
    CHECK(program.desk().typed.empty());
}

TEST_CASE("an external program that exists is started with its arguments, unquoted") {
    Host program;
    program.desk().writeFile("C:\\My Tools\\x.exe", "MZ");
    program.desk().inputAnswers = {"a b"};
    program.click("C:\\My Tools\\x.exe", 1, "?", 0);
    REQUIRE(program.desk().started.size() == 1);
    CHECK(program.desk().started[0].commandLine == "C:\\My Tools\\x.exe a b");
    CHECK(program.desk().started[0].windowStyle == 1);
    CHECK(program.desk().typed.empty());
    CHECK(program.desk().calls.empty());
}

TEST_CASE("without a dialog the command line is the path alone") {
    Host program;
    program.desk().writeFile("C:\\x.exe", "MZ");
    program.click("C:\\x.exe", 0, "", 0);
    CHECK(program.desk().started.at(0).commandLine == "C:\\x.exe");
}

TEST_CASE(
    "a program path that does not exist, is a folder or holds arguments starts nothing and says nothing") {
    Host program;
    program.desk().writeFile("C:\\x.exe", "MZ");
    program.desk().writeFile("C:\\folder", "");
    program.desk().file("C:\\folder")->directory = true;
    CHECK(program.click("C:\\none.exe", 0, "", 0));
    CHECK(program.click("C:\\folder", 0, "", 0));
    CHECK(program.click("C:\\x.exe /a", 0, "", 0));
    CHECK(program.click("", 0, "", 0));
    CHECK(program.desk().started.empty());
    CHECK(program.desk().messageBoxes.empty());
}

TEST_CASE("a start that fails is swallowed") {
    Host program;
    program.desk().writeFile("C:\\x.exe", "no program");
    program.desk().shellFailures.emplace_back(runtime::ErrorNumber::fileNotFound);
    CHECK(program.click("C:\\x.exe", 0, "", 0));
    CHECK(program.desk().messageBoxes.empty());
}

TEST_CASE("tokens are expanded in the path, and in nothing else") {
    Host program;
    program.desk().writeFile("C:\\kestrel\\x.exe", "MZ");
    program.desk().inputAnswers = {"{kestrelpath}"};
    program.click("{kestrelpath}\\x.exe", 1, "{kestrelpath}?", 0);
    CHECK(program.desk().inputBoxes.at(0).prompt == "{kestrelpath}?");
    CHECK(program.desk().started.at(0).commandLine == "C:\\kestrel\\x.exe {kestrelpath}");
}

TEST_CASE("a token in capitals passes the test but stays in the command") {
    Host program;
    program.click("run {EAGLEPATH}", 0, "", 1);
    // The braces are then notation that names no key, and are typed as they stand.
    CHECK(program.typed() == "run {EAGLEPATH}\n");
}

TEST_CASE("the eaglepath token drops out of a command") {
    Host program;
    program.click("run {eaglepath}\\x.ulp", 0, "", 1);
    CHECK(program.typed() == "run \\x.ulp\n");
}

TEST_CASE("the notation's characters in a command and in an input act as key codes") {
    Host program;
    program.desk().inputAnswers = {"{F3}"};
    program.click("grid mm;~%f", 1, "?", 1);
    const auto& strokes = program.desk().typed.at(0).strokes;
    REQUIRE(strokes.size() == 13);
    CHECK(strokes[8].key == platform::Key::enter);
    CHECK(strokes[9] == platform::KeyStroke{platform::Key::none, 'f', false, false, true});
    CHECK(strokes[10].character == ' ');
    CHECK(static_cast<int>(strokes[11].key) == 0x72);
}

TEST_CASE("a type of 3 shows its dialog, and then nothing happens") {
    Host program;
    program.desk().inputAnswers = {"abc"};
    program.click("{kestrelpath}\\x.exe", 1, "?", 3);
    CHECK(program.desk().inputBoxes.size() == 1);
    CHECK(program.desk().typed.empty());
    CHECK(program.desk().started.empty());
    CHECK(program.desk().calls.empty());
}

TEST_CASE("a dialog of 3 or -1 behaves like 0") {
    Host program;
    program.click("drc", 3, "?", 1);
    program.click("erc", -1, "?", 1);
    CHECK(program.desk().inputBoxes.empty());
    CHECK(program.desk().fileDialogs.empty());
    REQUIRE(program.desk().typed.size() == 2);
    CHECK(program.typed() == "erc\n");
}

TEST_CASE("letters with a byte that looks like a mark are letters in every field") {
    Host program;
    const std::string word = treacherous();
    const std::string tool = "C:\\" + word + "\\" + word + ".exe";
    program.desk().writeFile(tool, "MZ");
    program.desk().inputAnswers = {word};
    program.click(tool, 1, word + "?", 0);
    REQUIRE(program.desk().started.size() == 1);
    CHECK(program.desk().started[0].commandLine == tool + " " + word);
    CHECK(program.desk().inputBoxes.at(0).prompt == word + "?");
    program.click("run " + word, 0, word, 1);
    CHECK(program.typed() == "run " + word + "\n");
    program.click("+(" + word + ")", 0, "", 1);
    CHECK(program.typed() == word + "\n");
    CHECK(program.desk().messageBoxes.empty());
}

TEST_CASE("a section sign inside the path moves the fields, and the click ends in a type mismatch") {
    Host program;
    CHECK_FALSE(program.click(western("a\xA7z"), 0, "", 1));
    CHECK(program.desk().messageBoxes.at(0).text == "Run-time error '13':\r\n\r\nType mismatch");
    CHECK(program.desk().ended);
    CHECK_FALSE(program.desk().trayIcon.has_value());
}

TEST_CASE("a section sign inside the dialog text is noticed only after the dialog") {
    Host program;
    program.desk().inputAnswers = {"abc"};
    CHECK_FALSE(program.click("run", 1, western("a\xA7z"), 1));
    CHECK(program.desk().inputBoxes.at(0).prompt == "a");
    CHECK(program.desk().messageBoxes.at(0).text == "Run-time error '13':\r\n\r\nType mismatch");
}

TEST_CASE("a click remembers the selector of its toolbar's kind") {
    for (const auto& [kind, selector] : {std::pair{EditorKind::board, 2}, std::pair{EditorKind::schematic, 3},
                                         std::pair{EditorKind::library, 4}}) {
        Host program(kind);
        program.click("drc", 0, "", 1);
        CHECK(toolbars::lastToolbarKind == selector);
    }
}

TEST_CASE("a click on Over is ignored by the schematic toolbar only") {
    for (const auto& [kind, count] : {std::pair{EditorKind::board, 1U}, std::pair{EditorKind::schematic, 0U},
                                      std::pair{EditorKind::library, 1U}}) {
        Host program(kind);
        program.clickTag(western("drc\xA7"
                                 "0\xA7\xA7"
                                 "1"),
                         "Over");
        CHECK(program.desk().typed.size() == count);
    }
}

TEST_CASE("a click whose host has gone types into what has the focus") {
    Host program;
    const HWND other = program.desk().openWindow("another program");
    program.desk().closeWindow(program.host);
    program.click("drc", 0, "", 1);
    REQUIRE(program.desk().typed.size() == 1);
    CHECK(program.desk().typed[0].window == other);
}

TEST_CASE("a click on Config types nothing, reloads the list and builds this toolbar anew") {
    Host program;
    program.desk().writeSettings("[board]\r\n1name=Fit\r\n1path=window fit\r\n1dialog=0\r\n1type=1\r\n");
    program.desk().modalScripts.push_back([](forms::Form& setup) { setup.unload(); });
    program.desk().event([&] { program.toolbar(EditorKind::board, 1).toolbar.clickButton(0); });
    REQUIRE(program.toolbar(EditorKind::board, 1).toolbar.buttons().size() == 2);
    CHECK(program.toolbar(EditorKind::board, 1).toolbar.buttons()[0].key == "Fit1");
    CHECK(program.desk().typed.empty());
}

TEST_SUITE_END();
