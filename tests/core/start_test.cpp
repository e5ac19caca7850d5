// The start of the program and its ends.
#include "desktop/program.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <algorithm>

using desktop::Program;
using store::EditorKind;

namespace {

const char* const twoBoardButtons = "[board]\r\n1name=Fit\r\n1path=window fit\r\n1dialog=0\r\n1type=1\r\n"
                                    "2name=DRC\r\n2path=drc\r\n2dialog=0\r\n2type=1\r\n";

std::ptrdiff_t trayCalls(desktop::World& desk, const char* call) {
    return std::count(desk.calls.begin(), desk.calls.end(), call);
}

} // namespace

TEST_SUITE_BEGIN("core/start");

TEST_CASE("without a settings file everything has its default") {
    Program program;
    REQUIRE(program.start());
    CHECK(store::languageOffset == 0);
    CHECK(store::unitCalcActive == 0);
    CHECK(store::unitName[0] == "mil");
    CHECK(store::unitName[1] == "mm");
    CHECK(store::unitAccuracy[0] == "@");
    CHECK(store::unitAccuracy[1] == "@");
    CHECK_FALSE(store::boardButtons.allocated());
    CHECK_FALSE(store::schemButtons.allocated());
    CHECK_FALSE(store::librButtons.allocated());
    CHECK(program.desk().started.empty());
}

TEST_CASE("the start reads language, units and button lists") {
    Program program;
    program.desk().writeSettings(std::string("[global]\r\nlanguage=10000\r\n[Unit]\r\nVisible=1\r\n"
                                             "LeftUnit=Inch\r\nRightUnit=\r\nRightAccuracy=0.##\r\n") +
                                 twoBoardButtons);
    REQUIRE(program.start());
    CHECK(store::languageOffset == 10000);
    CHECK(store::unitCalcActive == 1);
    CHECK(store::unitName[0] == "Inch");
    CHECK(store::unitName[1] == "mm");
    CHECK(store::unitAccuracy[0] == "@");
    CHECK(store::unitAccuracy[1] == "0.##");
    CHECK(store::boardButtons.upperBound() == 2);
}

TEST_CASE("each list of forms starts with index 0: no calculator, a toolbar that is never loaded") {
    Program program;
    REQUIRE(program.start());
    CHECK(program.form().calculators.size() == 1);
    CHECK(program.form().calculators[0] == nullptr);
    for (const EditorKind kind : store::editorKinds) {
        REQUIRE(program.form().toolbarsOf(kind).size() == 1);
        CHECK(program.toolbar(kind, 0).eagHND == platform::HWND::none);
        CHECK_FALSE(program.toolbar(kind, 0).loaded());
    }
}

TEST_CASE("the tracker runs first 200 ms after the start, the request timer is off") {
    Program program;
    program.desk().startProcess("eagle.exe");
    program.desk().openWindow("Board - x.brd - EAGLE");
    REQUIRE(program.start());
    CHECK(program.form().Timer2.enabled());
    CHECK_FALSE(program.form().Timer1.enabled());
    program.desk().run(199);
    CHECK(program.hosted(EditorKind::board) == 0);
    program.desk().run(1);
    CHECK(program.hosted(EditorKind::board) == 1);
}

TEST_CASE("a second start ends at once and leaves everything as it is") {
    Program program;
    program.desk().otherInstance = true;
    program.desk().writeFile("C:\\kestrel\\execute.txt", "notepad.exe");
    CHECK_FALSE(program.start());
    CHECK(program.desk().ended);
    CHECK(program.desk().fileText("C:\\kestrel\\execute.txt") == "notepad.exe");
    CHECK(program.desk().settings().empty());
    CHECK(program.desk().settingsReads == 0);
    CHECK(trayCalls(program.desk(), "Shell_NotifyIcon 0") == 0);
    CHECK(program.desk().messageBoxes.empty());
    CHECK_FALSE(program.form().Timer2.enabled());
    CHECK_FALSE(program.form().loaded());
}

TEST_CASE("a run request left over from an earlier run is deleted unread") {
    Program program;
    program.desk().writeFile("C:\\kestrel\\execute.txt", "notepad.exe");
    REQUIRE(program.start());
    program.ticks(10);
    CHECK_FALSE(program.desk().fileText("C:\\kestrel\\execute.txt").has_value());
    CHECK(program.desk().started.empty());
}

TEST_CASE("a left-over request that cannot be deleted ends the program with the runtime's message") {
    Program program;
    program.desk().writeFile("C:\\kestrel\\execute.txt", "x");
    program.desk().file("C:\\kestrel\\execute.txt")->locked = true;
    CHECK_FALSE(program.start());
    REQUIRE(program.desk().messageBoxes.size() == 1);
    CHECK(program.desk().messageBoxes[0].text == "Run-time error '70':\r\n\r\nPermission denied");
    CHECK(program.desk().messageBoxes[0].style == 16);
    CHECK(program.desk().ended);
}

TEST_CASE("the tray icon stands after the start with its fields as they are stated") {
    Program program;
    REQUIRE(program.start());
    REQUIRE(program.desk().trayIcon.has_value());
    const platform::NOTIFYICONDATA& icon = *program.desk().trayIcon;
    CHECK(icon.cbSize == 88);
    CHECK(icon.uID == 2);
    CHECK(icon.uFlags == 7);
    CHECK(icon.uCallbackMessage == 512);
    CHECK(std::string(icon.szTip) == "Kestrel Bar for EAGLE");
    CHECK(icon.szTip[22] == ' ');
    CHECK(icon.szTip[63] == ' ');
}

TEST_CASE("closing Hauptform from outside removes the tray icon and is not refused") {
    Program program;
    REQUIRE(program.start());
    program.desk().event([&] { program.form().closeRequested(); });
    CHECK_FALSE(program.desk().trayIcon.has_value());
    CHECK_FALSE(program.form().loaded());
    CHECK(trayCalls(program.desk(), "Shell_NotifyIcon 2") == 2);
    CHECK(program.desk().ended);
}

TEST_CASE("a list row without type ends the start with a type mismatch, and the tray icon goes") {
    Program program;
    program.desk().writeSettings("[schem]\r\n1name=x\r\n1dialog=0\r\n");
    CHECK_FALSE(program.start());
    REQUIRE(program.desk().messageBoxes.size() == 1);
    CHECK(program.desk().messageBoxes[0].text == "Run-time error '13':\r\n\r\nType mismatch");
    CHECK_FALSE(program.desk().trayIcon.has_value());
}

TEST_CASE("a language beyond 32 bits ends the start with an overflow") {
    Program program;
    program.desk().writeSettings("[global]\r\nlanguage=99999999999\r\n");
    CHECK_FALSE(program.start());
    CHECK(program.desk().messageBoxes.at(0).text == "Run-time error '6':\r\n\r\nOverflow");
}

TEST_CASE("a language whose texts would have numbers beyond 32 bits ends the start with an overflow") {
    for (const char* language : {"2147483647", "2147482548"}) {
        Program program;
        program.desk().writeSettings(std::string("[global]\r\nlanguage=") + language + "\r\n");
        CHECK_FALSE(program.start());
        CHECK(program.desk().messageBoxes.at(0).text == "Run-time error '6':\r\n\r\nOverflow");
        CHECK_FALSE(program.desk().trayIcon.has_value());
    }
}

TEST_CASE("a language just short of that, or the lowest, has no texts and ends the start, too") {
    for (const char* language : {"2147482547", "-2147483648"}) {
        Program program;
        program.desk().writeSettings(std::string("[global]\r\nlanguage=") + language + "\r\n");
        CHECK_FALSE(program.start());
        CHECK(program.desk().messageBoxes.at(0).text.starts_with("Run-time error '326':"));
    }
}

TEST_CASE("a program folder that is a drive root finds its settings") {
    Program program;
    program.desk().programFolder = "C:\\";
    program.desk().writeFile("C:\\kestrel.ini", "[global]\r\nlanguage=10000\r\n");
    REQUIRE(program.start());
    CHECK(store::languageOffset == 10000);
}

TEST_CASE("while a runtime error is being shown no timer's code runs any more") {
    Program program;
    program.desk().startProcess("eagle.exe");
    REQUIRE(program.start());
    program.desk().openWindow("Library - (x) - EAGLE");
    int messagesBefore = -1;
    program.desk().onMessage = [&] {
        program.desk().onMessage = nullptr;
        program.desk().openWindow("Board - x.brd - EAGLE");
        for (int fired = 0; fired < 3; ++fired)
            program.desk().fireNext(program.desk().now + 1000);
        messagesBefore = static_cast<int>(program.desk().messageBoxes.size());
    };
    program.ticks(1);
    CHECK(messagesBefore == 1);
    CHECK(program.desk().messageBoxes.size() == 1);
    CHECK(program.hosted(EditorKind::board) == 0);
    CHECK(program.desk().ended);
}

TEST_SUITE_END();
