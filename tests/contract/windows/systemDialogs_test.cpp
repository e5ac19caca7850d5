// Dialogs and menus of the system over our windows and a host's: their owner is not disabled when they come,
// and when they have gone the keyboard is where it was.
#include "contract/toolForm.h"
#include "contract/windows/beside.h"
#include "contract/windows/hiddenMainForm.h"
#include "contract/world.h"
#include "forms/form.h"
#include "forms/menu.h"
#include "forms/peer.h"
#include "forms/textBox.h"
#include "platform/comdlg32.h"
#include "platform/dialogs.h"
#include "platform/keySender.h"
#include "platform/user32.h"
#include "win32/common/focusKeeper.h"
#include "win32/common/holding.h"
#include "win32/common/native.h"
#include "win32/common/systemDialog.h"
#include "win32/common/userWindow.h"
#include "win32/platform/iconChooser.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <commctrl.h>

#include <commdlg.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using contract::MainForm;
using contract::World;
using platform::Key;

/// A modal form of ours in which the user is in the second field.
class Dialog : public forms::Form {
  public:
    Dialog() {
        setClientSize(4500, 1800);
        first.place(*this, {150, 150, 3000, 300});
        second.place(*this, {150, 600, 3000, 300});
    }
    forms::TextBox first;
    forms::TextBox second;
};

/// A toolbar's form in a host's window.
class Guest : public contract::ToolForm {
  public:
    explicit Guest(platform::HWND host) {
        show();
        platform::SetParent(hWnd(), host);
    }
};

/// Looks how a window comes to be disabled.
class Disabling {
  public:
    Disabling(HWND window, HWND other) : window_(window), other_(other) {
        SetWindowSubclass(window_, hear, 3, reinterpret_cast<DWORD_PTR>(this));
    }
    ~Disabling() { RemoveWindowSubclass(window_, hear, 3); }
    Disabling(const Disabling&) = delete;
    Disabling& operator=(const Disabling&) = delete;

    int count = 0;
    bool otherWasHeld = false; ///< the last time

  private:
    static LRESULT CALLBACK hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                 DWORD_PTR disabling) {
        auto& self = *reinterpret_cast<Disabling*>(disabling);
        if (message == WM_ENABLE && wParam == FALSE) {
            ++self.count;
            self.otherWasHeld = IsWindowEnabled(self.other_) == FALSE;
        }
        return DefSubclassProc(window, message, wParam, lParam);
    }

    HWND window_;
    HWND other_;
};

int WINAPI choosingDialog(HWND owner, wchar_t* /*file*/, UINT /*size*/, int* /*index*/) {
    return MessageBoxA(owner, "Which icon?", "Chooser", MB_OKCANCEL) == IDOK ? 1 : 0;
}

/// A dialog of the system, as the program calls it. A message box has its own owner.
struct Call {
    std::string_view name;
    std::function<void(platform::HWND owner)> show;
};

std::vector<Call> calls(const World& world) {
    const auto fileDialog = [folder = world.path("")](platform::HWND owner,
                                                      int (*show)(platform::OPENFILENAMEA&)) {
        std::string name = "a.txt";
        name.resize(MAX_PATH);
        platform::OPENFILENAMEA record;
        record.lStructSize = platform::fileDialogRecordSize;
        record.hwndOwner = owner;
        record.lpstrFilter = "All\0*.*\0";
        record.nFilterIndex = 1;
        record.lpstrFile = name.data();
        record.nMaxFile = MAX_PATH;
        record.lpstrInitialDir = folder.c_str();
        record.lpstrTitle = "Which file?";
        record.lpstrDefExt = "";
        record.Flags = OFN_NOCHANGEDIR; // the folder is to be removed
        show(record);
    };
    return {
        {"message box", [](platform::HWND /*owner*/) { platform::msgBox("Text", 0, "Title"); }},
        {"open a file", [=](platform::HWND owner) { fileDialog(owner, platform::GetOpenFileNameA); }},
        {"save a file", [=](platform::HWND owner) { fileDialog(owner, platform::GetSaveFileNameA); }},
        {"icon chooser",
         [](platform::HWND owner) {
             std::string file;
             std::int32_t index = 0;
             win32::callIconChooser(choosingDialog, win32::native(owner), file, index);
         }},
    };
}

/// Lets the user close the dialog by each of the keys, and looks where the keyboard is then.
void closeBy(const std::vector<Key>& keys, const Call& call, platform::HWND owner, platform::HWND front,
             const std::function<std::string()>& text) {
    for (const Key key : keys) {
        CAPTURE(std::string(call.name));
        CAPTURE(static_cast<int>(key));
        REQUIRE(World::until([front] { return World::foreground() == front; }));
        bool closed = false;
        contract::withUser(
            contract::dialogClass, [&] { call.show(owner); },
            [&](HWND dialog) { closed = contract::closeBy(dialog, key); });
        CHECK(closed);
        CHECK(World::foreground() == front);
        CHECK(IsWindowEnabled(win32::native(front)));
        const std::string before = text();
        const platform::KeyStroke typed{.character = 'x'};
        platform::sendKeys({&typed, 1}, false);
        CHECK(World::until([&] { return text() == before + "x"; }));
    }
}

void checkMenu(World& world, const std::vector<Key>& keys, int chosen) {
    MainForm main;
    const platform::HWND editor = world.openEditor();
    const Guest guest(editor);
    forms::Menu menu;
    menu.items = {{0, "&Info"}, {1, "&Exit"}};
    int choice = -1;
    menu.onClick = [&](int index) { choice = index; };
    contract::withUser(
        contract::menuClass, [&] { forms::popUp(main, menu); },
        [&](HWND window) {
            for (const Key key : keys) {
                const platform::KeyStroke stroke{.key = key};
                platform::sendKeys({&stroke, 1}, false);
            }
            contract::comes([window] { return IsWindowVisible(window) == FALSE; });
        });
    CHECK(choice == chosen);
    CHECK(World::foreground() == editor);
    const platform::KeyStroke typed{.character = 'x'};
    platform::sendKeys({&typed, 1}, false);
    CHECK(World::until([&] { return world.editorText(editor) == "x"; }));
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/systemDialogs");

TEST_CASE("a dialog of the system finds its owner enabled, and disables it by itself") {
    World world;
    world.writeFile(world.path("a.txt"), "");
    MainForm main;
    for (const Call& call : calls(world)) {
        CAPTURE(std::string(call.name));
        Dialog dialog;
        dialog.show();
        const win32::Hold modal(dialog);
        // Younger than the others: of all forms that are held it is the last.
        Dialog bystander;
        bystander.show();
        EnableWindow(win32::native(bystander.hWnd()), TRUE);
        const Disabling disabling(win32::native(dialog.hWnd()), win32::native(bystander.hWnd()));
        // Again and again: a box that is still being made may not hear of it.
        contract::withUser(
            contract::dialogClass, [&] { call.show(dialog.hWnd()); },
            [](HWND box) {
                contract::comes([box] {
                    PostMessageA(box, WM_COMMAND, IDOK, 0);
                    return IsWindow(box) == FALSE;
                });
            });
        CHECK(disabling.count == 1);
        CHECK(disabling.otherWasHeld);
        for (forms::Form* form : {static_cast<forms::Form*>(&main), static_cast<forms::Form*>(&dialog),
                                  static_cast<forms::Form*>(&bystander)})
            CHECK(IsWindowEnabled(win32::native(form->hWnd())));
    }
}

TEST_CASE("the keyboard is given back while a dialog of the system still stands") {
    World world;
    MainForm main;
    const platform::HWND editor = world.openEditor();
    Guest guest(editor);
    REQUIRE(World::until([&] { return World::foreground() == editor; }));
    const win32::SystemDialog shown(win32::native(guest.hWnd()));
    const HWND dialog = CreateWindowExA(0, "#32770", "dialog", WS_POPUP | WS_CAPTION, 100, 100, 200, 100,
                                        shown.owner(), nullptr, nullptr, nullptr);
    EnableWindow(shown.owner(), FALSE);
    CHECK(World::until([&] { return IsWindowEnabled(win32::native(editor)) == FALSE; }));
    ShowWindow(dialog, SW_SHOW);
    REQUIRE(World::until([&] {
        SetForegroundWindow(dialog);
        return GetForegroundWindow() == dialog;
    }));
    EnableWindow(shown.owner(), TRUE);
    // At once: a window manager that had not yet heard of the dialog may bring that to the front once more.
    CHECK(World::foreground() == editor);
    CHECK(World::until([&] { return IsWindowEnabled(win32::native(editor)) != FALSE; }));
    DestroyWindow(dialog);
    CHECK(World::until([&] { return World::foreground() == editor; }));
}

TEST_CASE(
    "a dialog of the system over a modal form of ours gives the keyboard back to the field that had it") {
    World world;
    world.writeFile(world.path("a.txt"), "");
    MainForm main;
    for (const Call& call : calls(world)) {
        Dialog dialog;
        dialog.show();
        const win32::Hold modal(dialog);
        world.typeInto(dialog.second, "a");
        REQUIRE(World::until([&] { return dialog.second.text() == "a"; }));
        closeBy({Key::enter, Key::escape}, call, dialog.hWnd(), dialog.hWnd(),
                [&] { return dialog.second.text(); });
    }
}

TEST_CASE("a dialog of the system over a host gives the keyboard back to the host's field") {
    World world;
    world.writeFile(world.path("a.txt"), "");
    MainForm main;
    for (const Call& call : calls(world)) {
        const platform::HWND editor = world.openEditor();
        Guest guest(editor);
        closeBy({Key::enter, Key::escape}, call, guest.hWnd(), editor,
                [&] { return world.editorText(editor); });
        CHECK(World::until([editor] { return IsWindowEnabled(win32::native(editor)) != FALSE; }));
        guest.unload();
        world.closeWindow(editor);
    }
}

TEST_CASE("a dialog of the system gives the keyboard back to another window than that which it stands on") {
    World world;
    world.writeFile(world.path("a.txt"), "");
    MainForm main;
    const platform::HWND host = world.openEditor();
    Guest guest(host);
    const platform::HWND editor = world.openEditor();
    for (const Call& call : calls(world)) {
        CAPTURE(std::string(call.name));
        REQUIRE(World::until([editor] {
            SetForegroundWindow(win32::native(editor));
            return World::foreground() == editor;
        }));
        contract::withUser(
            contract::dialogClass, [&] { call.show(guest.hWnd()); },
            [&](HWND dialog) {
                contract::comes([dialog] { return contract::hasKeyboard(dialog); });
                // The system would take the next window behind the dialog.
                SetWindowPos(win32::native(editor), HWND_BOTTOM, 0, 0, 0, 0,
                             SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
                contract::closeBy(dialog, Key::escape);
            });
        CHECK(World::foreground() == editor);
    }
}

TEST_CASE("a menu that is left by Esc gives the keyboard back") {
    World world;
    checkMenu(world, {Key::escape}, -1);
}

TEST_CASE("a menu whose entry opens nothing gives the keyboard back") {
    World world;
    checkMenu(world, {Key::down, Key::down, Key::enter}, 1);
}

TEST_CASE("a hidden window of ours that is in front is not where the user was") {
    World world;
    MainForm main;
    const platform::HWND editor = world.openEditor();
    const Guest guest(editor);
    REQUIRE(World::until([&] { return win32::userWindow() == win32::native(editor); }));
    SetForegroundWindow(win32::native(main.hWnd()));
    REQUIRE(World::until([&] { return World::foreground() == main.hWnd(); }));
    CHECK(win32::userWindow() == win32::native(editor));
    contract::withUser(
        contract::dialogClass, [] { platform::msgBox("Text", 0, "Title"); },
        [](HWND box) { contract::closeBy(box, Key::enter); });
    CHECK(World::foreground() == editor);
}

TEST_CASE("a program that ends while its hidden window is in front gives the keyboard back first") {
    World world;
    MainForm main;
    const platform::HWND editor = world.openEditor();
    const Guest guest(editor);
    win32::FocusKeeper menu;
    SetForegroundWindow(win32::native(main.hWnd()));
    REQUIRE(World::until([&] { return World::foreground() == main.hWnd(); }));
    win32::FocusKeeper::leaveAll();
    CHECK(World::foreground() == editor);
    menu.dismiss();
    const platform::KeyStroke typed{.character = 'x'};
    platform::sendKeys({&typed, 1}, false);
    CHECK(World::until([&] { return world.editorText(editor) == "x"; }));
}

TEST_CASE("the task bar in front is not where the user was") {
    if (contract::worldKind() != contract::WorldKind::wine)
        return; // the true shell's own is the one that is found
    World world;
    const platform::HWND editor = world.openEditor();
    const Guest guest(editor);
    REQUIRE(World::until([&] { return win32::userWindow() == win32::native(editor); }));
    WNDCLASSA description{};
    description.lpfnWndProc = DefWindowProcA;
    description.lpszClassName = "Shell_TrayWnd";
    RegisterClassA(&description);
    const HWND bar = CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, "Shell_TrayWnd", "", WS_POPUP, 0, 0,
                                     300, 30, nullptr, nullptr, nullptr, nullptr);
    ShowWindow(bar, SW_SHOWNOACTIVATE);
    CHECK(World::until([bar] {
        SetForegroundWindow(bar);
        return GetForegroundWindow() == bar;
    }));
    CHECK(win32::userWindow() == win32::native(editor));
    DestroyWindow(bar);
    UnregisterClassA("Shell_TrayWnd", nullptr); // other tests make it with a procedure of their own
}

TEST_CASE("a host that was busy when a dialog of ours went gets the keyboard back before it is typed to") {
    World world;
    Dialog dialog; // stays in front
    dialog.show();
    const platform::HWND editor = world.openEditor();
    const Guest guest(editor);
    std::optional<win32::FocusKeeper> keeper(std::in_place);
    world.typeInto(dialog.second, "");
    world.hangOtherProgram(1'900);
    keeper.reset();
    REQUIRE(World::foreground() == dialog.hWnd());
    std::vector<platform::KeyStroke> strokes;
    for (const char32_t character : std::u32string_view(U"ripup"))
        strokes.push_back({.character = character});
    platform::sendKeys(strokes, true);
    CHECK(World::until([&] { return world.editorText(editor) == "ripup"; }));
    CHECK(World::foreground() == editor);
    CHECK(dialog.second.text().empty());
}

TEST_CASE("what is typed to a host that is busy for longer goes to no other window") {
    World world;
    Dialog dialog; // stays in front
    dialog.show();
    const platform::HWND editor = world.openEditor();
    const Guest guest(editor);
    std::optional<win32::FocusKeeper> keeper(std::in_place);
    world.typeInto(dialog.second, "");
    world.hangOtherProgram(5'000);
    keeper.reset();
    REQUIRE(World::foreground() == dialog.hWnd());
    const platform::KeyStroke typed{.character = 'x'};
    platform::sendKeys({&typed, 1}, true);
    world.wakeOtherProgram();
    // What it gets meanwhile it gets on Windows; Wine has no focus to give it to before the host wakes.
    CHECK(World::until([&] { return World::foreground() == editor; }));
    CHECK(dialog.second.text().empty());
}

TEST_CASE("a host that is too busy to come to the front does so before it is typed to") {
    World world;
    Dialog dialog; // stays in front
    dialog.show();
    const platform::HWND editor = world.openEditor();
    const Guest guest(editor);
    world.typeInto(dialog.second, "");
    world.hangOtherProgram(700);
    // What a click on a button does, in one go.
    platform::BringWindowToTop(editor);
    REQUIRE(World::foreground() == dialog.hWnd());
    const platform::KeyStroke typed{.character = 'x'};
    platform::sendKeys({&typed, 1}, true);
    CHECK(World::until([&] { return world.editorText(editor) == "x"; }));
    CHECK(World::foreground() == editor);
    CHECK(dialog.second.text().empty());
}

TEST_CASE("what a host was too busy to take back is not pressed on it later") {
    World world;
    Dialog dialog;
    dialog.show();
    const platform::HWND editor = world.openEditor();
    std::optional<win32::FocusKeeper> keeper(std::in_place);
    world.typeInto(dialog.second, "");
    world.hangOtherProgram(5'000);
    keeper.reset();
    PostMessageA(win32::native(dialog.hWnd()), WM_NULL, 0, 0);
    world.typeInto(dialog.second, "abc");
    CHECK(World::until([&] { return dialog.second.text() == "abc"; }));
    world.wakeOtherProgram();
    CHECK(world.editorText(editor).empty());
}

TEST_SUITE_END();
