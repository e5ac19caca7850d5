#include "failures/stories.h"

#include "core/frmMenu.h"
#include "runtime/text.h"
#include "setup/frmSetup.h"
#include "store/state.h"

#include <sstream>

namespace failures {

namespace {

using desktop::HWND;
using desktop::Program;
using store::EditorKind;

constexpr const char* request = "C:\\kestrel\\execute.txt";
constexpr int openEagle = 3;
constexpr int configuration = 4;
constexpr int leave = 6;

/// A list with an entry of each type: a program with an input, a command with a file, a separator.
std::string list(const std::string& section) {
    return "[" + section +
           "]\r\n1name=Edit\r\n1path=C:\\tools\\edit.exe\r\n1tooltip=t\r\n1param=Name?\r\n1icon=C:\\x.ico,"
           "1\r\n"
           "1dialog=1\r\n1type=0\r\n2name=Run\r\n2path=run\r\n2param=Which?\r\n2dialog=2\r\n2type=1\r\n"
           "3name=---\r\n3dialog=0\r\n3type=2\r\n";
}

void prepare(Program& program) {
    desktop::World& desk = program.desk();
    for (const char* file : {"C:\\EAGLE\\eagle.exe", "C:\\tools\\edit.exe"})
        desk.writeFile(file, "MZ");
    desk.addShortcut("C:\\tools\\edit.lnk", "C:\\tools\\edit.exe", "");
    desk.addIcons("C:\\x.ico", 3);
    desk.addIcons("C:\\kestrel\\brd.ico", 1);
    desk.writeSettings(
        "[global]\r\nlanguage=10000\r\n[Unit]\r\nVisible=1\r\nLeftUnit=Inch\r\nRightAccuracy=0.##\r\n"
        "[Toolbar]\r\nautoEAGLE=1\r\nautoToolbar=1\r\nwinEAGLE=1\r\noneEAGLE=1\r\n"
        "EAGLEpath=C:\\EAGLE\\eagle.exe\r\nlastBoard=C:\\old.brd\r\neagleFile=board - c:\\old.brd\r\n" +
        list("board") + list("schem") + list("libr"));
    desk.startProcess("explorer.exe", 7);
    desk.startProcess("eagle.exe");
}

void run(Program& program) {
    prepare(program);
    program.start();
}

void openEditors(Program& program) {
    for (const char* title : {"1 Board - C:\\a.brd - EAGLE", "1 Schematic - C:\\b.sch - EAGLE",
                              "1 Library - C:\\c.lbr (x) - EAGLE"})
        program.desk().openWindow(title);
}

void runWithEditors(Program& program) {
    run(program);
    openEditors(program);
    program.ticks(1);
}

// --- the seven

/// EAGLE is started by the start of the program, and brought to the front by the menu later on.
void start(Program& program) {
    desktop::World& desk = program.desk();
    desk.writeFile(request, "C:\\tools\\edit.exe");
    program.start();
    desk.openWindow("Board - C:\\old.brd - EAGLE");
    desk.openWindow("EAGLE: Control Panel");
    desk.openWindow("another program");
    desk.event([] { core::menuForm().mnuTaskbarG.onClick(openEagle); });
}

void editors(Program& program) {
    openEditors(program);
    program.ticks(2);
}

/// Two boards, one behind the other, each with its toolbar and its calculator.
void runWithTwoBoards(Program& program) {
    run(program);
    program.desk().screens = {{96}, {144}};
    for (const char* title : {"1 Board - C:\\a.brd - EAGLE", "2 Board - C:\\b.brd - EAGLE"}) {
        const HWND board = program.desk().openWindow(title, {0, 0, 1024, 700});
        program.desk().window(board).awareness = desktop::Awareness::perMonitor;
        program.ticks(1);
    }
}

/// Both follow with the first tick; the second finds nothing to do.
void screens(Program& program) {
    for (const HWND window : program.desk().order)
        program.desk().window(window).screen = 1;
    program.ticks(2);
}

void clicks(Program& program) {
    desktop::World& desk = program.desk();
    desk.inputAnswers = {"abc"};
    desk.fileAnswers = {"C:\\some file.ulp"};
    const auto click = [&](EditorKind kind, std::size_t place) {
        if (program.toolbar(kind, 1).toolbar.buttons().size() > place)
            desk.event([&] { program.toolbar(kind, 1).toolbar.clickButton(place); });
    };
    click(EditorKind::board, 0);
    click(EditorKind::schematic, 1);
    desk.modalScripts = {[](forms::Form& shown) { shown.closeRequested(); }};
    click(EditorKind::library, 3);
}

void editSetup(forms::Form& shown) {
    auto& form = dynamic_cast<setup::frmSetup&>(shown);
    form.btnAdd[0].click();
    form.btnAddEAGLE[1].click();
    form.lstApps[2].selected(0);
    form.btnIcon[2].click();
    form.txtTitle[2].edited("Other");
    form.btnL[2].click();
    form.lstApps[2].keyPressed({.character = U'c', .control = true});
    form.lstApps[1].keyPressed({.character = U'v', .control = true});
    static const std::vector<std::string> dropped = {"C:\\tools\\edit.lnk", "C:\\tools\\edit.exe"};
    form.lstApps[0].filesDropped(dropped);
    form.lstApps[0].selected(0);
    form.btnRemove[0].click();
    form.chkUnitCalc.setValue(0);
    form.btnHelp.click();
    form.btnOk.click();
    if (form.visible())
        form.btnCancel.click();
}

void setup(Program& program) {
    desktop::World& desk = program.desk();
    desk.fileAnswers = {"C:\\tools\\edit.exe"};
    desk.chooserAnswers = {{platform::iconPicked, u"C:\\x.ico", 2}};
    desk.modalScripts = {editSetup};
    desk.event([] { core::menuForm().mnuTaskbarG.onClick(configuration); });
}

void runRequest(Program& program) {
    program.desk().writeFile(request, "C:\\tools\\edit.exe \"a b\"");
    program.desk().run(1000);
}

void leaveByMenu(Program& program) {
    desktop::World& desk = program.desk();
    desk.onMenu = [](forms::Menu& menu) { menu.onClick(leave); };
    constexpr float rightReleased = 0x1E4B;
    desk.event([&] { program.form().txtTooltip.onMouseMove(0, 0, rightReleased, 0); });
}

// --- what there is to see

std::string number(std::uintptr_t value) {
    return std::to_string(value);
}

std::string place(desktop::World& desk, HWND window) {
    const desktop::Window* found = desk.find(window);
    if (found == nullptr)
        return "gone";
    const desktop::Window* host = desk.find(found->parent);
    return (host == nullptr ? std::string("nowhere") : host->title) + " " +
           number(static_cast<std::uintptr_t>(found->rect.left)) + "," + std::to_string(found->rect.top) +
           "," + std::to_string(found->rect.right) + "," + std::to_string(found->rect.bottom) +
           (desk.isSeen(window) ? "" : " unseen") + (found->redraw ? "" : " undrawn");
}

std::string rows(const store::ButtonList& buttons) {
    std::string text;
    for (std::int32_t row = 1; row <= buttons.upperBound(); ++row) {
        const store::ToolButton& each = buttons[row];
        text += each.name + "|" + each.path + "|" + each.tooltip + "|" + each.param + "|" + each.icon + "|" +
                std::to_string(each.dialog) + "|" + std::to_string(each.type) + "|" +
                std::to_string(each.live) + "\n";
    }
    return text;
}

std::string pictures(const forms::ImageList& images) {
    std::uint64_t hash = 0;
    for (int index = 1; index <= images.count(); ++index) {
        hash = hash * 31 + 1;
        for (const std::uint32_t pixel : images.picture(index).pixels())
            hash = hash * 31 + pixel;
    }
    return std::to_string(hash);
}

void tellToolbars(Program& program, Facts& facts) {
    for (const EditorKind kind : store::editorKinds)
        for (std::size_t index = 1; index <= program.hosted(kind); ++index) {
            toolbars::frmToolbar& bar = program.toolbar(kind, index);
            facts["toolbars"] +=
                number(static_cast<std::uintptr_t>(bar.eagHND)) + " " + std::to_string(bar.milIndex) + "\n";
            facts["places"] += place(program.desk(), bar.hWnd()) + "\n";
            for (const forms::ToolbarButton& button : bar.toolbar.buttons())
                facts["buttons"] += button.key + "|" + button.tag + "|" + button.toolTipText + "\n";
            facts["pictures"] += pictures(bar.ImageList1) + "\n";
        }
    for (const auto& calculator : program.form().calculators)
        if (calculator)
            facts["calculators"] += place(program.desk(), calculator->fraMil.hWnd()) + "\n";
}

void tellUser(desktop::World& desk, Facts& facts) {
    for (const desktop::MessageBox& box : desk.messageBoxes)
        facts["messages"] += box.text + "\n";
    for (const desktop::InputBox& box : desk.inputBoxes)
        facts["dialogs"] += box.prompt + "\n";
    for (const desktop::FileDialog& dialog : desk.fileDialogs)
        facts["dialogs"] += dialog.title + dialog.initialDir + "\n";
    for (const auto& chooser : desk.chooserCalls)
        facts["dialogs"] += number(chooser.length) + " " + std::to_string(chooser.index) + "\n";
    for (const desktop::TypedKeys& keys : desk.typed)
        facts["typed"] += desk.find(keys.window) != nullptr
                              ? desk.window(keys.window).title + keys.text() + "\n"
                              : keys.text();
    for (const desktop::ShellStart& started : desk.started)
        facts["started"] += started.commandLine + "\n";
    for (const std::string& title : desk.activations)
        facts["activated"] += title + "\n";
    facts["help"] = std::to_string(desk.helpCalls.size());
    facts["clipboard"] = desk.clipboard.value_or("none");
    facts["beeps"] = std::to_string(desk.beeps);
}

} // namespace

const std::array<Story, storyCount> stories = {{
    {"start", prepare, start},
    {"editors", run, editors},
    {"screens", runWithTwoBoards, screens},
    {"clicks", runWithEditors, clicks},
    {"setup", run, setup},
    {"request", run, runRequest},
    {"exit", run, leaveByMenu},
}};

std::map<std::string, std::string> settingsOf(const std::string& file) {
    std::map<std::string, std::string> values;
    std::istringstream lines(file);
    std::string section;
    for (std::string line; std::getline(lines, line);) {
        const std::string text(runtime::trim(line.substr(0, line.find('\r'))));
        const std::size_t equals = text.find('=');
        if (text.starts_with('['))
            section = runtime::lowerCase(text);
        else if (equals != std::string::npos)
            values[section + runtime::lowerCase(text.substr(0, equals))] = text.substr(equals + 1);
    }
    return values;
}

Facts factsOf(Program& program) {
    desktop::World& desk = program.desk();
    Facts facts;
    tellUser(desk, facts);
    // What is left of a program that has ended is the system's to clear away.
    facts["ended"] = desk.ended ? "yes" : "no";
    facts["tray"] = desk.trayIcon ? std::string(desk.trayIcon->szTip) +
                                        number(static_cast<std::uintptr_t>(desk.trayIcon->hIcon))
                                  : "no icon";
    for (const auto& [section, value] : settingsOf(desk.settings()))
        facts["settings"] += section + "=" + value + "\n";
    for (const char* kept : {"C:\\kestrel\\kestrel.sav", "C:\\kestrel\\kestrel.bak"})
        facts["kept"] += desk.fileText(kept).value_or("none") + "\n";
    facts["request"] = desk.file(request) != nullptr ? "waits" : "gone";
    if (!desk.ended) {
        tellToolbars(program, facts);
        facts["lists"] = rows(store::boardButtons) + rows(store::schemButtons) + rows(store::librButtons);
        facts["units"] = store::unitName[0] + store::unitName[1] + store::unitAccuracy[0] +
                         store::unitAccuracy[1] + std::to_string(store::unitCalcActive);
        facts["language"] = std::to_string(store::languageOffset);
        facts["timers"] = std::string(program.form().Timer1.enabled() ? "1" : "-") +
                          (program.form().Timer2.enabled() ? "2" : "-");
    }
    for (const HWND window : desk.order) {
        const desktop::Window& seen = desk.window(window);
        if (seen.process != desktop::programProcess)
            facts["windows"] +=
                seen.title + (seen.redraw ? "" : " undrawn") + (seen.enabled ? "" : " disabled") + "\n";
    }
    return facts;
}

} // namespace failures
