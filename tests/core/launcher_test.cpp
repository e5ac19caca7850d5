// The launcher: EAGLE is started, or a running one comes to the front.
#include "core/launcher.h"

#include "core/windoInf.h"
#include "desktop/program.h"
#include "store/state.h"
#include "store/textCatalogue.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

using core::commandLineTail;
using desktop::Program;

namespace {

const std::string path = "C:\\EAGLE\\bin\\eagle.exe";

/// A program that has started, with EAGLE installed and the settings given in section "toolbar".
struct Launcher {
    explicit Launcher(const std::string& settings, const std::string& installed = path) {
        desk().writeFile(installed, "MZ");
        desk().writeSettings("[global]\r\nlanguage=" + language + "\r\n[toolbar]\r\nEAGLEpath=" + installed +
                             "\r\n" + settings);
        REQUIRE(program.start());
    }
    desktop::World& desk() { return program.desk(); }
    bool run() {
        return desk().event([] { core::startEagle(); });
    }
    /// The command line of the one start; "none" where nothing was started.
    std::string started() { return desk().started.empty() ? "none" : desk().started.back().commandLine; }

    std::string language = "0";
    Program program;
};

} // namespace

TEST_SUITE_BEGIN("core/launcher");

TEST_CASE("the tail for each set of names") {
    CHECK(commandLineTail({"", "", ""}).empty());
    CHECK(commandLineTail({"b.brd", "", ""}) == " -C \"window fit;\"b.brd");
    CHECK(commandLineTail({"", "s.sch", ""}) == " -C \"window fit;\"s.sch");
    CHECK(commandLineTail({"", "", "l.lbr"}) == " -C \"window fit;\"l.lbr");
    CHECK(commandLineTail({"b.brd", "s.sch", ""}) == " -C \"edit s.sch;\" b.brd");
    CHECK(commandLineTail({"b.brd", "", "l.lbr"}) == " -C \"open l.lbr;\" b.brd");
    CHECK(commandLineTail({"", "s.sch", "l.lbr"}) == " -C \"open l.lbr;\" s.sch");
    CHECK(commandLineTail({"b.brd", "s.sch", "l.lbr"}) == " -C \"open l.lbr; edit s.sch;\" b.brd");
}

TEST_CASE("names go in as they stand, blanks and quotes among them") {
    CHECK(commandLineTail({"C:\\my work\\a b.brd", "x\"y.sch", ""}) ==
          " -C \"edit x\"y.sch;\" C:\\my work\\a b.brd");
}

TEST_CASE("the path is followed by the tail, window style 1") {
    Launcher launcher(
        "winEAGLE=7\r\nlastBoard=C:\\w\\b.brd\r\nlastSCH=C:\\w\\s.sch\r\nlastLBR=C:\\w\\l.lbr\r\n");
    REQUIRE(launcher.run());
    CHECK(launcher.started() == path + " -C \"open C:\\w\\l.lbr; edit C:\\w\\s.sch;\" C:\\w\\b.brd");
    CHECK(launcher.desk().started.back().windowStyle == 1);
    CHECK(launcher.desk().messageBoxes.empty());
}

TEST_CASE("EAGLE.EXE in capitals is accepted, and starts as the setting has it") {
    Launcher launcher("", "C:\\EAGLE\\EAGLE.EXE");
    REQUIRE(launcher.run());
    CHECK(launcher.started() == "C:\\EAGLE\\EAGLE.EXE");
}

TEST_CASE("an empty path, a missing file and another file name give the message, and nothing starts") {
    for (const std::int32_t language : {0, 10000})
        for (const char* wrong : {"", "C:\\EAGLE\\nothing.exe", "C:\\EAGLE\\bin\\other.exe", "C:\\EAGLE\\bin",
                                  "\"C:\\EAGLE\\bin\\eagle.exe\"x", "C:\\EAGLE\\bin\\eagle.exe -x",
                                  "\\\\far\\share\\eagle.exe"}) {
            CAPTURE(wrong);
            Launcher launcher("");
            launcher.desk().writeFile("C:\\EAGLE\\bin\\other.exe", "MZ");
            launcher.desk().writeSettings("[toolbar]\r\noneEAGLE=1\r\nEAGLEpath=" + std::string(wrong) +
                                          "\r\n");
            store::languageOffset = language;
            const std::string before = launcher.desk().settings();
            REQUIRE(launcher.run());
            CHECK(launcher.started() == "none");
            REQUIRE(launcher.desk().messageBoxes.size() == 1);
            const desktop::MessageBox& box = launcher.desk().messageBoxes[0];
            CHECK(box.style == 16);
            CHECK(box.text == (language == 0
                                   ? "EAGLE.EXE konnte nicht gefunden werden.\r\nBitte in der Konfiguration "
                                     "korrekt eintragen."
                                   : "Can't find EAGLE.EXE. Please select\r\nthis file correct in the "
                                     "configuration."));
            CHECK(box.title == (language == 0 ? "Hinweis" : "Information"));
            CHECK(launcher.desk().settings() == before);
        }
}

TEST_CASE("a path with quotes around it is read without them, as the settings file has it") {
    Launcher launcher("");
    launcher.desk().writeSettings("[toolbar]\r\nEAGLEpath=\"" + path + "\"\r\n");
    REQUIRE(launcher.run());
    CHECK(launcher.started() == path);
}

TEST_CASE("a hidden file and a folder named eagle.exe are refused") {
    Launcher launcher("");
    launcher.desk().file(path)->hidden = true;
    REQUIRE(launcher.run());
    launcher.desk().file(path)->hidden = false;
    launcher.desk().file(path)->directory = true;
    REQUIRE(launcher.run());
    CHECK(launcher.started() == "none");
    CHECK(launcher.desk().messageBoxes.size() == 2);
}

TEST_CASE("oneEAGLE on and no control panel: EAGLE is started") {
    Launcher launcher("oneEAGLE=1\r\n");
    launcher.desk().openWindow("Board - a.brd - EAGLE");
    REQUIRE(launcher.run());
    CHECK(launcher.started() == path);
}

TEST_CASE("oneEAGLE off and EAGLE running: a further EAGLE is started") {
    Launcher launcher("oneEAGLE=0\r\n");
    launcher.desk().openWindow("EAGLE Control Panel");
    REQUIRE(launcher.run());
    CHECK(launcher.started() == path);
    CHECK(launcher.desk().activations.empty());
}

TEST_CASE("oneEAGLE is on with any number but 0, a fraction or one beyond 32 bits among them") {
    struct Case {
        const char* value;
        bool on;
    };
    for (const Case& one : {Case{"0.4", true}, Case{"-1", true}, Case{"99999999999", true}, Case{"2x", true},
                            Case{"0", false}, Case{"0.0", false}, Case{"x1", false}, Case{"", false}}) {
        CAPTURE(one.value);
        Launcher launcher(std::string("oneEAGLE=") + one.value + "\r\n");
        launcher.desk().openWindow("EAGLE Control Panel");
        REQUIRE(launcher.run());
        CHECK((launcher.started() == "none") == one.on);
    }
}

TEST_CASE("winEAGLE beyond 32 bits is the runtime's overflow") {
    Launcher launcher("winEAGLE=99999999999\r\n");
    CHECK_FALSE(launcher.run());
    CHECK(launcher.started() == "none");
    REQUIRE(launcher.desk().messageBoxes.size() == 1);
    CHECK(launcher.desk().messageBoxes[0].text == "Run-time error '6':\r\n\r\nOverflow");
}

TEST_CASE("last-file names with blanks and quotes in the settings get no quotes and keep theirs") {
    Launcher launcher(
        "winEAGLE=3\r\nlastBoard=\"C:\\my work\\a b.brd\"\r\nlastSCH=C:\\w\\the \"new\" one.sch\r\n");
    REQUIRE(launcher.run());
    // A pair of quotes around a whole value is the settings file's own.
    CHECK(launcher.started() == path + " -C \"edit C:\\w\\the \"new\" one.sch;\" C:\\my work\\a b.brd");
}

TEST_CASE("winEAGLE 7 with one name gives the form for one file") {
    Launcher launcher("winEAGLE=7\r\nlastSCH=  C:\\w\\s.sch  \r\n");
    REQUIRE(launcher.run());
    CHECK(launcher.started() == path + " -C \"window fit;\"C:\\w\\s.sch");
}

TEST_CASE("winEAGLE 1 and no last board: EAGLE starts without arguments") {
    Launcher launcher("winEAGLE=1\r\nlastBoard=   \r\nlastSCH=s.sch\r\n");
    REQUIRE(launcher.run());
    CHECK(launcher.started() == path);
}

TEST_CASE("blanks at the ends of a last file, which quotes keep in the settings, do not count") {
    Launcher launcher("winEAGLE=3\r\nlastBoard=\"   \"\r\nlastSCH=\"  C:\\w\\s.sch  \"\r\n");
    REQUIRE(launcher.run());
    CHECK(launcher.started() == path + " -C \"window fit;\"C:\\w\\s.sch");
}

TEST_CASE("each bit of winEAGLE reads its own key only") {
    const std::string names = "lastBoard=b.brd\r\nlastSCH=s.sch\r\nlastLBR=l.lbr\r\n";
    const char* const tails[] = {"",
                                 " -C \"window fit;\"b.brd",
                                 " -C \"window fit;\"s.sch",
                                 " -C \"edit s.sch;\" b.brd",
                                 " -C \"window fit;\"l.lbr",
                                 " -C \"open l.lbr;\" b.brd",
                                 " -C \"open l.lbr;\" s.sch",
                                 " -C \"open l.lbr; edit s.sch;\" b.brd"};
    for (int bits = 0; bits < 8; ++bits) {
        CAPTURE(bits);
        Launcher launcher("winEAGLE=" + std::to_string(bits) + "\r\n" + names);
        REQUIRE(launcher.run());
        CHECK(launcher.started() == path + tails[bits]);
    }
    Launcher high("winEAGLE=8\r\n" + names);
    REQUIRE(high.run());
    CHECK(high.started() == path);
}

TEST_CASE(
    "the front sequence raises the control panel; without winEAGLE the editors follow, the board last") {
    Launcher launcher("oneEAGLE=1\r\n");
    const auto panel = launcher.desk().openWindow("Control Panel - EAGLE");
    const auto board = launcher.desk().openWindow("Board - a.brd - EAGLE");
    launcher.desk().openWindow("Schematic - a.sch - EAGLE");
    launcher.desk().openWindow("Library - a.lbr - EAGLE");
    launcher.desk().raise(launcher.desk().openWindow("Something else"));
    REQUIRE(launcher.run());
    CHECK(launcher.started() == "none");
    CHECK(launcher.desk().activations == std::vector<std::string>{"library", "schematic", "board"});
    CHECK(launcher.desk().foreground == board);
    CHECK(launcher.desk().order.front() == board);
    CHECK(std::find(launcher.desk().order.begin(), launcher.desk().order.end(), panel) -
              launcher.desk().order.begin() ==
          3);
}

TEST_CASE("a kind without a window is left out of the front sequence") {
    Launcher launcher("oneEAGLE=1\r\n");
    launcher.desk().openWindow("Control Panel - EAGLE");
    launcher.desk().openWindow("Schematic - a.sch - EAGLE");
    REQUIRE(launcher.run());
    CHECK(launcher.desk().activations == std::vector<std::string>{"schematic"});
}

TEST_CASE("a window that only holds the word is no application by that title: the runtime's error ends all") {
    Launcher launcher("oneEAGLE=1\r\n");
    launcher.desk().openWindow("Control Panel - EAGLE");
    launcher.desk().openWindow("1 Board - a.brd - EAGLE");
    CHECK_FALSE(launcher.run());
    REQUIRE(launcher.desk().messageBoxes.size() == 1);
    CHECK(launcher.desk().messageBoxes[0].text ==
          "Run-time error '5':\r\n\r\nInvalid procedure call or argument");
}

TEST_CASE("winEAGLE on and no EAGLEfile: only the control panel is raised") {
    Launcher launcher("oneEAGLE=1\r\nwinEAGLE=7\r\n");
    const auto panel = launcher.desk().openWindow("Control Panel - EAGLE");
    launcher.desk().openWindow("Board - a.brd - EAGLE");
    REQUIRE(launcher.run());
    CHECK(launcher.desk().order.front() == panel);
    CHECK(launcher.desk().activations.empty());
    CHECK(launcher.started() == "none");
}

TEST_CASE("winEAGLE on: the window of EAGLEfile is raised, restored and activated") {
    Launcher launcher("oneEAGLE=1\r\nwinEAGLE=1\r\nEAGLEfile=BOARD - A\r\n");
    launcher.desk().openWindow("Control Panel - EAGLE");
    const auto board = launcher.desk().openWindow("Board - a.brd - EAGLE");
    launcher.desk().openWindow("Schematic - a.sch - EAGLE");
    launcher.desk().window(board).minimised = true;
    launcher.desk().calls.clear();
    REQUIRE(launcher.run());
    const std::string handle = std::to_string(static_cast<std::uintptr_t>(board));
    CHECK(std::count(launcher.desk().calls.begin(), launcher.desk().calls.end(),
                     "BringWindowToTop " + handle) == 1);
    CHECK(launcher.desk().calls.back() == "ShowWindow " + handle + " 9");
    CHECK(launcher.desk().foreground == board);
    CHECK_FALSE(launcher.desk().window(board).minimised);
    CHECK(launcher.desk().activations == std::vector<std::string>{"board - a"});
}

TEST_CASE("no window of EAGLEfile: the kind word in it leads to a window, which is only activated") {
    struct Case {
        const char* file;
        const char* activated;
    };
    for (const Case& one : {Case{"the board x", "board"}, Case{"schematic or library", "schematic"},
                            Case{"a library", "library"}, Case{"library, schematic and board", "board"}}) {
        CAPTURE(one.file);
        Launcher launcher(std::string("oneEAGLE=1\r\nwinEAGLE=1\r\nEAGLEfile=") + one.file + "\r\n");
        launcher.desk().openWindow("Control Panel - EAGLE");
        const auto board = launcher.desk().openWindow("Board - a.brd - EAGLE");
        launcher.desk().openWindow("Schematic - a.sch - EAGLE");
        launcher.desk().openWindow("Library - a.lbr - EAGLE");
        launcher.desk().window(board).minimised = true;
        REQUIRE(launcher.run());
        CHECK(launcher.desk().activations == std::vector<std::string>{one.activated});
        CHECK(launcher.desk().window(board).minimised);
    }
}

TEST_CASE("the kind word is looked for in its exact case, and the title search did the only work") {
    Launcher launcher("oneEAGLE=1\r\nwinEAGLE=1\r\nEAGLEfile=Board x\r\n");
    launcher.desk().openWindow("Control Panel - EAGLE");
    launcher.desk().openWindow("Board - a.brd - EAGLE");
    REQUIRE(launcher.run());
    CHECK(launcher.desk().activations.empty());
    CHECK(core::searchTitle == "board x");
}

TEST_CASE("a kind word without a window ends the sequence") {
    Launcher launcher("oneEAGLE=1\r\nwinEAGLE=1\r\nEAGLEfile=library\r\n");
    launcher.desk().openWindow("Control Panel - EAGLE");
    launcher.desk().openWindow("Board - a.brd - EAGLE");
    REQUIRE(launcher.run());
    CHECK(launcher.desk().activations.empty());
}

TEST_CASE("a command line that cannot be started is the runtime's error and the end") {
    Launcher launcher("");
    launcher.desk().shellFailures.emplace_back(runtime::ErrorNumber::fileNotFound);
    CHECK_FALSE(launcher.run());
    REQUIRE(launcher.desk().messageBoxes.size() == 1);
    CHECK(launcher.desk().messageBoxes[0].text == "Run-time error '53':\r\n\r\nFile not found");
    CHECK_FALSE(launcher.desk().trayIcon.has_value());
}

TEST_CASE("autoEAGLE runs it at the start, before the tracker") {
    Program program;
    program.desk().writeFile(path, "MZ");
    program.desk().writeSettings("[toolbar]\r\nautoEAGLE=1\r\nEAGLEpath=" + path +
                                 "\r\nwinEAGLE=1\r\nlastBoard=b.brd\r\n");
    REQUIRE(program.start());
    REQUIRE(program.desk().started.size() == 1);
    CHECK(program.desk().started[0].commandLine == path + " -C \"window fit;\"b.brd");
    CHECK(program.form().Timer2.enabled());
}

TEST_CASE(
    "autoEAGLE with a wrong path shows the message, without a tick under it, and then tracks normally") {
    Program program;
    program.desk().writeSettings(
        "[toolbar]\r\nautoEAGLE=1\r\nEAGLEpath=C:\\x.exe\r\n[global]\r\nlanguage=10000\r\n");
    bool ticking = true;
    program.desk().onMessage = [&] { ticking = program.form().Timer2.enabled(); };
    program.desk().startProcess("eagle.exe");
    program.desk().openWindow("Board - a.brd - EAGLE");
    REQUIRE(program.start());
    CHECK(program.desk().messageBoxes.size() == 1);
    CHECK_FALSE(ticking);
    program.ticks(1);
    CHECK(program.hosted(store::EditorKind::board) == 1);
}

TEST_SUITE_END();
