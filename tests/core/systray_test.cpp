// The tray icon and its menu.
#include "codePages.h"
#include "core/frmMenu.h"
#include "core/frmSplash.h"
#include "desktop/program.h"
#include "setup/frmSetup.h"
#include "store/state.h"
#include "store/textCatalogue.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

using desktop::Program;

namespace {

constexpr int mouseMove = 0x200;
constexpr int leftPressed = 0x201;
constexpr int leftReleased = 0x202;
constexpr int leftDoubleClick = 0x203;
constexpr int rightPressed = 0x204;
constexpr int rightReleased = 0x205;
constexpr int rightDoubleClick = 0x206;

/// A program with its icon in the tray.
struct Tray {
    explicit Tray(const std::string& settings = "", int dpi = forms::Resolution::designDpi) {
        desk().screens = {{dpi}};
        desk().writeSettings(settings);
        REQUIRE(program.start());
    }
    desktop::World& desk() { return program.desk(); }
    /// The shell reports what the mouse does on the icon.
    bool mouse(int message) {
        return desk().event([&] {
            forms::TextBox& hidden = program.form().txtTooltip;
            hidden.onMouseMove(0, 0, hidden.resolution().toTwips(message), 0);
        });
    }
    /// The user opens the menu and chooses an entry.
    bool choose(int index) {
        desk().onMenu = [index](forms::Menu& menu) { menu.choose(index); };
        const bool alive = mouse(rightReleased);
        desk().onMenu = nullptr;
        return alive;
    }
    std::vector<std::string> captions() {
        std::vector<std::string> texts;
        for (const forms::MenuItem& item : core::menuForm().mnuTaskbarG.items)
            texts.push_back(item.caption);
        return texts;
    }
    std::ptrdiff_t adds() {
        return std::count(desk().calls.begin(), desk().calls.end(), "Shell_NotifyIcon 0");
    }

    Program program;
};

} // namespace

TEST_SUITE_BEGIN("core/systray");

TEST_CASE("the icon is the program's, its messages go to the hidden text box, and blanks fill its tip") {
    Tray tray;
    const platform::NOTIFYICONDATA& icon = tray.desk().trayIcon.value();
    CHECK(icon.hWnd == tray.program.form().txtTooltip.hWnd());
    CHECK_FALSE(tray.program.form().txtTooltip.visible());
    CHECK(icon.hIcon == platform::programIcon());
    const std::string tip = std::string("Kestrel Bar for EAGLE") + '\0';
    CHECK(std::string(std::begin(icon.szTip), std::end(icon.szTip)) ==
          tip + std::string(64 - tip.size(), ' '));
}

TEST_CASE("the form that the tray speaks to has neither a border nor a button on the task bar") {
    Tray tray;
    CHECK(tray.program.form().borderStyle == forms::BorderStyle::none);
    CHECK_FALSE(tray.program.form().showInTaskbar);
    CHECK(tray.program.form().caption() == "Kestrel Strip for EAGLE");
    CHECK_FALSE(tray.program.form().visible());
}

TEST_CASE("of a longer tip the first 63 characters are taken") {
    Program program;
    program.form().txtTooltip.setText(std::string(70, 'x'));
    REQUIRE(program.start());
    CHECK(std::string(program.desk().trayIcon.value().szTip) == std::string(63, 'x'));
}

TEST_CASE("the menu opens on the release of either button") {
    Tray tray;
    tray.mouse(leftReleased);
    CHECK(tray.desk().menusOpened == 1);
    tray.mouse(rightReleased);
    CHECK(tray.desk().menusOpened == 2);
}

TEST_CASE("the menu opens on the release at every resolution of the screen") {
    for (const int dpi : {120, 144, 168, 192}) {
        CAPTURE(dpi);
        Tray tray("", dpi);
        CHECK(tray.program.form().txtTooltip.resolution() == forms::Resolution());
        tray.mouse(leftReleased);
        tray.mouse(rightReleased);
        CHECK(tray.desk().menusOpened == 2);
    }
}

TEST_CASE("moves, presses and double clicks do not open the menu") {
    Tray tray;
    for (const int message :
         {mouseMove, leftPressed, leftDoubleClick, rightPressed, rightDoubleClick, 0x207, 0x208, 0})
        tray.mouse(message);
    CHECK(tray.desk().menusOpened == 0);
}

TEST_CASE("a right click opens the menu on the release and not on the press") {
    Tray tray;
    tray.mouse(rightPressed);
    CHECK(tray.desk().menusOpened == 0);
    tray.mouse(rightReleased);
    CHECK(tray.desk().menusOpened == 1);
}

TEST_CASE("a double click opens the menu with its first release; its own message is ignored") {
    Tray tray;
    tray.mouse(leftPressed);
    tray.mouse(leftReleased);
    CHECK(tray.desk().menusOpened == 1);
    tray.mouse(leftDoubleClick);
    CHECK(tray.desk().menusOpened == 1);
}

TEST_CASE("the tracker goes on ticking under the menu") {
    Tray tray;
    tray.desk().startProcess("eagle.exe");
    tray.desk().openWindow("Board - a.brd - EAGLE");
    std::size_t hosted = 0;
    tray.desk().onMenu = [&](forms::Menu&) {
        tray.desk().run(1000);
        hosted = tray.program.hosted(store::EditorKind::board);
    };
    REQUIRE(tray.mouse(leftReleased));
    CHECK(hosted == 1);
}

TEST_CASE("the menu has five entries and two separators in the language of the settings") {
    Tray german;
    CHECK(german.captions() == std::vector<std::string>{"&Info", "&Hilfe", "-",
                                                        western("&EAGLE \xF6"
                                                                "ffnen"),
                                                        "&Konfiguration", "-", "&Beenden"});
    std::vector<int> indices;
    for (const forms::MenuItem& item : core::menuForm().mnuTaskbarG.items) {
        indices.push_back(item.index);
        CHECK(item.visible);
        CHECK(item.enabled);
    }
    CHECK(indices == std::vector<int>{0, 1, 2, 3, 4, 5, 6});
    Tray english("[global]\r\nlanguage=10000\r\n");
    CHECK(english.captions() ==
          std::vector<std::string>{"&Info", "&Help", "-", "&Open EAGLE", "&Configuration", "-", "&Exit"});
}

TEST_CASE("before its texts are loaded the menu has those of its design, on a form without a border") {
    Program program;
    CHECK(core::menuForm().borderStyle == forms::BorderStyle::none);
    std::vector<std::string> texts;
    for (const forms::MenuItem& item : core::menuForm().mnuTaskbarG.items)
        texts.push_back(item.caption);
    CHECK(texts == std::vector<std::string>{"&Info", "&Hilfe", "-", "&EAGLE ", "&Config", "-", "&Exit"});
}

TEST_CASE("a language that is missing, empty or no number is German") {
    for (const char* settings : {"", "[global]\r\nlanguage=\r\n", "[global]\r\nlanguage=x\r\n"}) {
        Tray tray(settings);
        CHECK(tray.captions().back() == "&Beenden");
    }
}

TEST_CASE("language 1 fails at the start, at the first id without a text, and the icon goes") {
    Program program;
    program.desk().writeSettings("[global]\r\nlanguage=1\r\n");
    CHECK_FALSE(program.start());
    REQUIRE(program.desk().messageBoxes.size() == 1);
    CHECK(program.desk().messageBoxes[0].text ==
          "Run-time error '326':\r\n\r\nResource with identifier '1105' not found");
    CHECK_FALSE(program.desk().trayIcon.has_value());
}

TEST_CASE("a language changed meanwhile is that of the next menu, and the icon's tip stays") {
    Tray tray;
    store::languageOffset = 10000;
    core::menuForm().loadResources();
    CHECK(tray.captions().back() == "&Exit");
    CHECK(std::string(tray.desk().trayIcon->szTip) == "Kestrel Bar for EAGLE");
    CHECK(tray.adds() == 1);
}

TEST_CASE("Info shows the splash without holding the program") {
    Tray tray("[Unit]\r\n");
    tray.desk().startProcess("eagle.exe");
    REQUIRE(tray.choose(0));
    CHECK(core::splashForm().visible());
    CHECK(tray.desk().modalForms.empty());
    tray.desk().openWindow("Board - a.brd - EAGLE");
    tray.program.ticks(1);
    CHECK(tray.program.hosted(store::EditorKind::board) == 1);
    tray.desk().run(2000);
    CHECK_FALSE(core::splashForm().loaded());
}

TEST_CASE("Info while the splash is up shows it once and does not start its time anew") {
    Tray tray;
    REQUIRE(tray.choose(0));
    const platform::HWND window = core::splashForm().hWnd();
    tray.desk().run(1900);
    REQUIRE(tray.choose(0));
    CHECK(core::splashForm().hWnd() == window);
    tray.desk().run(100);
    CHECK_FALSE(core::splashForm().loaded());
}

TEST_CASE("Help opens the help file at the start topic of the language") {
    Tray german;
    REQUIRE(german.choose(1));
    REQUIRE(german.desk().helpCalls.size() == 1);
    const desktop::HelpCall& call = german.desk().helpCalls[0];
    CHECK(call.owner == platform::HWND::none);
    CHECK(call.file == "C:\\kestrel\\EAGLE_Kestrel_Bench.chm");
    CHECK(call.command == 15);
    CHECK(call.data == 6000);
    CHECK(german.desk().messageBoxes.empty()); // what the viewer answers is not looked at
    Tray english("[global]\r\nlanguage=10000\r\n");
    REQUIRE(english.choose(1));
    CHECK(english.desk().helpCalls.at(0).data == 16000);
}

TEST_CASE("while there is no help viewer Help beeps, says so and tries again") {
    Tray tray("[global]\r\nlanguage=10000\r\n");
    tray.desk().helpFailures = 2;
    REQUIRE(tray.choose(1));
    CHECK(tray.desk().helpCalls.size() == 3);
    CHECK(tray.desk().beeps == 2);
    REQUIRE(tray.desk().messageBoxes.size() == 2);
    CHECK(tray.desk().messageBoxes[0].text == "An Error occurs while opening of the Help File");
    CHECK(tray.desk().messageBoxes[0].title == "Error");
    CHECK(tray.desk().messageBoxes[0].style == 16);
}

TEST_CASE("Open EAGLE runs the launcher, with the tracker ticking under its message") {
    Tray tray("[toolbar]\r\nEAGLEpath=C:\\nowhere.exe\r\n");
    bool ticking = false;
    tray.desk().onMessage = [&] { ticking = tray.program.form().Timer2.enabled(); };
    REQUIRE(tray.choose(3));
    CHECK(tray.desk().messageBoxes.size() == 1);
    CHECK(ticking);
}

TEST_CASE("Open EAGLE starts the command line that the program's start would") {
    Tray tray("[toolbar]\r\nEAGLEpath=C:\\EAGLE\\eagle.exe\r\nwinEAGLE=1\r\nlastBoard=b.brd\r\n");
    tray.desk().writeFile("C:\\EAGLE\\eagle.exe", "MZ");
    REQUIRE(tray.choose(3));
    REQUIRE(tray.desk().started.size() == 1);
    CHECK(tray.desk().started[0].commandLine == "C:\\EAGLE\\eagle.exe -C \"window fit;\"b.brd");
    CHECK(tray.desk().messageBoxes.empty());
}

TEST_CASE("Configuration opens the setup on its first page, with the tracker off, and then tracks at once") {
    Tray tray;
    tray.desk().startProcess("eagle.exe");
    bool seen = false;
    tray.desk().modalScripts.emplace_back([&](forms::Form& form) {
        seen = &form == &setup::setupForm();
        CHECK(setup::setupForm().TabStrip1.tab() == 0);
        CHECK_FALSE(tray.program.form().Timer2.enabled());
        tray.desk().openWindow("Board - a.brd - EAGLE");
        tray.desk().run(1000);
        CHECK(tray.program.hosted(store::EditorKind::board) == 0);
        setup::setupForm().btnCancel.click();
    });
    REQUIRE(tray.choose(4));
    CHECK(seen);
    CHECK(tray.program.form().Timer2.enabled());
    CHECK(tray.program.hosted(store::EditorKind::board) == 1);
}

TEST_CASE("Configuration while the setup is up opens no second one and leaves the tracker off") {
    Tray tray;
    tray.desk().modalScripts.emplace_back([&](forms::Form&) {
        REQUIRE(tray.choose(4));
        CHECK(tray.desk().modalForms.size() == 1);
        CHECK_FALSE(tray.program.form().Timer2.enabled());
        setup::setupForm().btnCancel.click();
    });
    REQUIRE(tray.choose(4));
    CHECK(tray.program.form().Timer2.enabled());
}

TEST_CASE("Exit removes the icon, lets pending events run once and ends the program") {
    Tray tray;
    bool iconGoneBefore = false;
    tray.desk().onPump = [&] { iconGoneBefore = !tray.desk().trayIcon.has_value(); };
    const std::string settings = tray.desk().settings();
    CHECK_FALSE(tray.choose(6));
    CHECK(tray.desk().ended);
    CHECK(iconGoneBefore);
    CHECK(tray.desk().messagePumps == 1);
    CHECK(tray.desk().settings() == settings);
    CHECK(tray.program.form().loaded()); // no form is asked
}

TEST_CASE("any other index unloads the menu's form; separators cannot be chosen") {
    Tray tray;
    REQUIRE(core::menuForm().loaded()); // from the start on
    CHECK_FALSE(core::menuForm().visible());
    core::menuForm().mnuTaskbarG.choose(2);
    core::menuForm().mnuTaskbarG.choose(5);
    CHECK(core::menuForm().loaded());
    core::menuForm().mnuTaskbar_Click(2);
    CHECK_FALSE(core::menuForm().loaded());
    core::menuForm().load();
    core::menuForm().mnuTaskbar_Click(99);
    CHECK_FALSE(core::menuForm().loaded());
}

TEST_CASE("the icon comes back after the shell has restarted") {
    Tray tray;
    tray.desk().trayIcon.reset();
    tray.program.form().Form_TaskbarCreated();
    REQUIRE(tray.desk().trayIcon.has_value());
    CHECK(tray.desk().trayIcon->uID == 2);
    CHECK(tray.adds() == 2);
}

TEST_CASE("a shell that starts before the program has an icon to add gets none") {
    Program program;
    program.form().Form_TaskbarCreated();
    CHECK_FALSE(program.desk().trayIcon.has_value());
}

TEST_CASE("an icon that the shell refuses is offered again once a second, silently") {
    Program program;
    program.desk().trayRefuses = true;
    REQUIRE(program.start());
    program.desk().run(3500);
    CHECK(std::count(program.desk().calls.begin(), program.desk().calls.end(), "Shell_NotifyIcon 0") == 4);
    CHECK(program.desk().messageBoxes.empty());
    program.desk().trayRefuses = false;
    program.desk().run(1000);
    CHECK(program.desk().trayIcon.has_value());
    program.desk().run(10'000);
    CHECK(std::count(program.desk().calls.begin(), program.desk().calls.end(), "Shell_NotifyIcon 0") == 5);
}

TEST_CASE("after two minutes of refusal the program runs on without an icon") {
    Program program;
    program.desk().trayRefuses = true;
    REQUIRE(program.start());
    program.desk().run(600'000);
    CHECK(std::count(program.desk().calls.begin(), program.desk().calls.end(), "Shell_NotifyIcon 0") == 120);
    CHECK_FALSE(program.desk().ended);
    program.desk().trayRefuses = false;
    program.form().Form_TaskbarCreated();
    CHECK(program.desk().trayIcon.has_value());
}

TEST_CASE("a shell that has restarted is asked for two minutes again") {
    Program program;
    program.desk().trayRefuses = true;
    REQUIRE(program.start());
    program.desk().run(600'000);
    program.desk().calls.clear();
    program.form().Form_TaskbarCreated();
    program.desk().run(600'000);
    CHECK(std::count(program.desk().calls.begin(), program.desk().calls.end(), "Shell_NotifyIcon 0") == 120);
}

TEST_CASE("an icon that has been removed is not offered again") {
    Program program;
    program.desk().trayRefuses = true;
    REQUIRE(program.start());
    program.form().delSystray();
    program.desk().trayRefuses = false;
    program.desk().run(5000);
    CHECK_FALSE(program.desk().trayIcon.has_value());
}

TEST_SUITE_END();
