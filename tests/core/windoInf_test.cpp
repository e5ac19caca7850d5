#include "codePages.h"
#include "core/windoInf.h"

#include "desktop/desktop.h"

#include <doctest/doctest.h>

#include <string>

using desktop::Session;
using desktop::world;
using platform::HWND;

TEST_SUITE_BEGIN("core/windoInf");

TEST_CASE("the title search ignores case and gives the window nearest the top") {
    Session session;
    const HWND behind = world().openWindow("board - a.brd - EAGLE");
    const HWND front = world().openWindow("BOARD - b.brd - EAGLE");
    CHECK(core::findWindowByTitle("Board -") == front);
    CHECK(core::searchTitle == "board -");
    CHECK(core::foundWindow == front);
    world().raise(behind);
    CHECK(core::findWindowByTitle("Board -") == behind);
}

TEST_CASE("the title search folds umlauts") {
    Session session;
    const HWND window = world().openWindow(western("B\xC4R \xDC"
                                                   "BER - x"));
    CHECK(core::findWindowByTitle(western("b\xE4r \xFC"
                                          "ber")) == window);
}

TEST_CASE("the title search takes hidden windows too") {
    Session session;
    const HWND window = world().openWindow("Board - hidden - EAGLE");
    world().window(window).visible = false;
    CHECK(core::findWindowByTitle("Board -") == window);
}

TEST_CASE("a search for the empty text gives no window and leaves the last search text") {
    Session session;
    world().openWindow("");
    core::findWindowByTitle("Board -");
    CHECK(core::findWindowByTitle("") == HWND::none);
    CHECK(core::searchTitle == "board -");
}

TEST_CASE("a search that finds nothing gives none and forgets the window found before") {
    Session session;
    world().openWindow("Board - x - EAGLE");
    REQUIRE(core::findWindowByTitle("board") != HWND::none);
    CHECK(core::findWindowByTitle("schematic") == HWND::none);
    CHECK(core::foundWindow == HWND::none);
}

TEST_CASE("the title search reads the first 255 characters of a title") {
    Session session;
    world().openWindow(std::string(249, 'x') + "board -");
    CHECK(core::findWindowByTitle("Board -") == HWND::none);
    const HWND fits = world().openWindow(std::string(248, 'x') + "board -");
    CHECK(core::findWindowByTitle("Board -") == fits);
}

TEST_CASE("a title that equals the text is found") {
    Session session;
    const HWND window = world().openWindow("Control Panel");
    CHECK(core::findWindowByTitle("control panel") == window);
}

TEST_CASE("the caption of a dead window or of one without title is empty") {
    Session session;
    CHECK(core::getWindowCaption(HWND{0x999}).empty());
    CHECK(core::getWindowCaption(world().openWindow("")).empty());
}

TEST_CASE("a caption of one character is one") {
    Session session;
    CHECK(core::getWindowCaption(world().openWindow("x")) == "x");
}

TEST_CASE("a caption loses its leading blanks and is held to 255 characters") {
    Session session;
    CHECK(core::getWindowCaption(world().openWindow("   Board - x")) == "Board - x");
    CHECK(core::getWindowCaption(world().openWindow(std::string(10'000, 'a'))) == std::string(255, 'a'));
    CHECK(core::getWindowCaption(world().openWindow("     ")).empty());
}

TEST_CASE("a caption is cut at its first zero character and keeps control characters before it") {
    Session session;
    CHECK(core::getWindowCaption(world().openWindow(std::string("a\x01\tb\0c", 6))) == "a\x01\tb");
}

TEST_CASE("the file is what stands between the first two separators") {
    CHECK(core::fileOfTitle("Board - C:\\work\\demo.brd - EAGLE 5.11.0") == "C:\\work\\demo.brd");
    CHECK(core::fileOfTitle("a - b - c - d") == "b");
}

TEST_CASE("a title with fewer than two separators gives no file") {
    CHECK(core::fileOfTitle("").empty());
    CHECK(core::fileOfTitle("Board").empty());
    CHECK(core::fileOfTitle("Board - demo.brd").empty());
    CHECK(core::fileOfTitle("Board -demo.brd- EAGLE").empty());
}

TEST_CASE("the second separator may not share a character with the first") {
    CHECK(core::fileOfTitle("Board - - EAGLE").empty());
    CHECK(core::fileOfTitle("Board -  - EAGLE").empty());
    CHECK(core::fileOfTitle(" -  - ").empty());
    CHECK(core::fileOfTitle("Board - x -  - y") == "x");
}

TEST_CASE("a file path that holds a separator is cut there") {
    CHECK(core::fileOfTitle("Board - C:\\a - b\\x.brd - EAGLE") == "C:\\a");
}

TEST_CASE("EAGLE runs when any process is called something that holds eagle.exe") {
    Session session;
    CHECK(core::isEagleRunning() == 0);
    world().startProcess("explorer.exe", 1);
    CHECK(core::isEagleRunning() == 0);
    world().startProcess("MyEAGLE.EXE.bak", 2);
    CHECK(core::isEagleRunning() == 1);
}

TEST_CASE("EAGLE does not run when the process walk fails") {
    Session session;
    world().startProcess("eagle.exe", 2);
    world().snapshotFails = true;
    CHECK(core::isEagleRunning() == 0);
}

TEST_CASE("a process name that fills its whole field is read to its end") {
    Session session;
    world().startProcess(std::string(251, 'x') + "eagle.exe");
    CHECK(core::isEagleRunning() == 1);
}

TEST_CASE("what follows the NUL of a process's name is not a part of it") {
    Session session;
    world().startProcess(std::string("explorer.exe\0eagle.exe", 22), 1);
    CHECK(core::isEagleRunning() == 0);
}

TEST_CASE("the snapshot of the process walk stays open") {
    Session session;
    core::isEagleRunning();
    core::isEagleRunning();
    CHECK(world().openSnapshots == 2);
}

TEST_CASE("raising passes the top of the order without a flag and always-on-top with one") {
    Session session;
    const HWND window = world().openWindow("x");
    world().calls.clear();
    core::setWindowOnTop(window, 0);
    core::setWindowOnTop(window, 1);
    const std::string number = std::to_string(static_cast<std::uintptr_t>(window));
    CHECK(world().calls[0] == "SetWindowPos " + number + " 0 0 0 0 0 3");
    CHECK(world().calls[1] == "SetWindowPos " + number + " -1 0 0 0 0 3");
}

TEST_SUITE_END();
