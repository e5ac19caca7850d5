// Editors that come and go, the setup and the dialogs of buttons, again and again: what they leave behind.
//
// KESTREL_GROWTH gives the number of rounds of 20 editors; without it nothing is played.
#include "contract/toolForm.h"
#include "contract/windows/counts.h"
#include "contract/windows/icons.h"
#include "contract/windows/tips.h"
#include "contract/world.h"
#include "core/hauptform.h"
#include "forms/defaultInstance.h"
#include "forms/textBox.h"
#include "setup/frmSetup.h"
#include "store/state.h"
#include "win32/common/messages.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <utility>

namespace {

using contract::World;

constexpr int editorsInRound = 20;
constexpr int ticksOfEditor = 18;
constexpr int rows = 30;
constexpr std::size_t inputButton = 0;
constexpr std::size_t fileButton = 1;

/// Closes a dialog of a button as the user would by Cancel.
BOOL CALLBACK cancel(HWND window, LPARAM /*extra*/) {
    char text[32] = {};
    GetClassNameA(window, text, sizeof text);
    const bool system = std::string(text) == "#32770";
    GetWindowTextA(window, text, sizeof text);
    if (IsWindowVisible(window) != FALSE && (system || std::string(text) == "Input Parameter"))
        PostMessageA(window, system ? WM_COMMAND : WM_CLOSE, system ? IDCANCEL : 0, 0);
    return TRUE;
}

/// The user: leaves the setup by OK, and any other dialog by Cancel.
void CALLBACK answer(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
    static bool answering = false;
    const auto& form = forms::defaultSlot<setup::frmSetup>();
    if (form && form->visible()) {
        if (!std::exchange(answering, true)) {
            form->btnOk.click();
            answering = false;
        }
    } else
        EnumThreadWindows(GetCurrentThreadId(), cancel, 0);
}

struct Counted {
    int windows = contract::openWindows();
    int graphics = contract::openGraphics();
    int icons = contract::openIconHandles();
    int handles = contract::openHandles();
    std::size_t own = contract::ownBytes();
    std::size_t heap = contract::heapBytes();
    std::size_t memory = contract::privateBytes();
};

/// The tracker beside a board that stays, with thirty buttons in each toolbar and a calculator in each
/// editor.
class Tracking {
  public:
    Tracking() {
        const std::string eagle = world.path("eagle.exe");
        world.writeFile(eagle, "x");
        std::string settings = "[toolbar]\r\nEAGLEpath=" + eagle + "\r\n[unit]\r\nvisible=1\r\n";
        for (const char* list : {"board", "schem"}) {
            settings += "[" + std::string(list) + "]\r\n";
            for (int row = 1; row <= rows; ++row)
                settings += rowOf(std::to_string(row), row <= 2 ? row : 0);
        }
        world.writeFile(World::settingsPath(), settings);
        store::unitCalcActive = 1;
        open("1 Board - stays.brd - EAGLE");
    }
    ~Tracking() {
        store::unitCalcActive = 0;
        store::boardButtons = {};
        store::schemButtons = {};
    }
    Tracking(const Tracking&) = delete;
    Tracking& operator=(const Tracking&) = delete;

    void editorComesAndGoes(bool board) {
        const platform::HWND editor = open(board ? "1 Board - x.brd - EAGLE" : "1 Schematic - x.sch - EAGLE");
        toolbars::frmToolbar& toolbar = board ? *form.toolbarsBRD.back() : *form.toolbarsSCH.back();
        REQUIRE(toolbar.hWnd() != platform::HWND::none);
        calculator::frmMil& calculator = *form.calculators.back();
        for (int ticks = 1; ticks < ticksOfEditor; ++ticks)
            tick();
        world.closeWindow(editor);
        REQUIRE(World::until([&] {
            return toolbar.hWnd() == platform::HWND::none && calculator.hWnd() == platform::HWND::none;
        }));
    }

    void click(std::size_t button) {
        const UINT_PTR timer = SetTimer(nullptr, 0, 20, answer);
        form.toolbarsBRD.front()->toolbar.clickButton(button);
        KillTimer(nullptr, timer);
        win32::servePending();
        REQUIRE(store::unitCalcActive == 1);
    }

    void editors(int count) {
        for (int editor = 0; editor < count; ++editor)
            editorComesAndGoes(editor % 2 == 0);
    }

    void clicks(std::size_t button, int count) {
        for (int time = 0; time < count; ++time)
            click(button);
    }

  private:
    static std::string rowOf(const std::string& row, int dialog) {
        static const std::string icon = World::dataFile("brd.ico") + ",0\r\n";
        return row + "name=Button\r\n" + row + "path=window fit\r\n" + row + "tooltip=Fits the drawing\r\n" +
               row + "dialog=" + std::to_string(dialog) + "\r\n" + row + "type=1\r\n" + row + "icon=" + icon;
    }

    /// All that the timer does: the tracker, and the look for a run request.
    void tick() { form.Timer2.onTimer(); }

    platform::HWND open(const std::string& title) {
        const platform::HWND editor = world.openWindow(title);
        tick();
        win32::servePending();
        return editor;
    }

    World world;
    core::Hauptform form;
};

} // namespace

TEST_SUITE_BEGIN("contract/windows/growth");

TEST_CASE("editors, setups and dialogs that come and go leave no windows, graphics, icons, kernel objects "
          "and memory") {
    const char* const wanted = std::getenv("KESTREL_GROWTH");
    if (wanted == nullptr)
        return;
    const int editors = std::atoi(wanted) * editorsInRound;
    const int times = editors / 2;
    struct Part {
        const char* name;
        int count;
        double kept; ///< of our own memory, in KB for each
        std::function<void(Tracking&, int)> play;
    };
    // What comes and goes by itself (a device context in store, for instance); one for each time is far more.
    constexpr int spare = 4;
    // The forms of a closed editor stay, by design; nothing else does.
    const Part parts[] = {
        {"editors", editors, 3, [](Tracking& program, int count) { program.editors(count); }},
        {"setups", times, 0, [](Tracking& program, int count) { program.clicks(rows, count); }},
        {"input boxes", times, 0, [](Tracking& program, int count) { program.clicks(inputButton, count); }},
        {"file dialogs", times, 0, [](Tracking& program, int count) { program.clicks(fileButton, count); }},
    };
    Tracking program;
    for (const Part& part : parts)
        part.play(program, 2);
    for (const Part& part : parts) {
        const Counted before;
        part.play(program, part.count);
        const Counted after;
        INFO(std::string(part.name));
        CHECK(after.windows <= before.windows + spare);
        CHECK(after.graphics <= before.graphics + spare);
        CHECK(after.icons <= before.icons + spare);
        CHECK(after.handles <= before.handles + spare);
        const auto each = [&part](std::size_t now, std::size_t then) {
            return (static_cast<double>(now) - static_cast<double>(then)) / 1024 / part.count;
        };
        CHECK(each(after.own, before.own) <= part.kept);
        MESSAGE(part.count << " " << std::string(part.name) << ": " << after.windows << " windows, "
                           << after.graphics << " graphics, " << after.icons << " icons, " << after.handles
                           << " kernel objects, before " << before.windows << ", " << before.graphics << ", "
                           << before.icons << ", " << before.handles << "; for each "
                           << each(after.own, before.own) << " KB of our own memory, "
                           << each(after.heap, before.heap) << " KB of heap, "
                           << each(after.memory, before.memory) << " KB of private memory");
    }
}

TEST_CASE("a window with a tool tip leaves nothing in the system's heap") {
    struct Tipped : contract::ToolForm {
        Tipped() {
            box.place(*this, {0, 0, 300, 300});
            box.setToolTipText("a tip");
        }
        forms::TextBox box;
    };
    const auto comesAndGoes = [] {
        Tipped form;
        form.load();
        REQUIRE(form.box.hWnd() != platform::HWND::none);
        contract::pointAt(form.box);
        REQUIRE(contract::Tip(form.box).window() != nullptr);
        DestroyWindow(win32::native(form.hWnd())); // as a host takes a form along
        REQUIRE(form.lost());
    };
    constexpr std::size_t times = 100;
    for (std::size_t time = 0; time < times; ++time)
        comesAndGoes();
    const std::size_t before = contract::heapBytes();
    for (std::size_t time = 0; time < times; ++time)
        comesAndGoes();
    // A record for each would be 80 bytes and more.
    CHECK(contract::heapBytes() <= before + times * 40);
}

TEST_SUITE_END();
