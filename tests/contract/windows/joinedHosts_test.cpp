// A host that has the keyboard and hangs: nothing of ours waits for it, and it gets back what it had.
#include "contract/windows/beside.h"
#include "contract/windows/hostGuest.h"
#include "contract/windows/importHook.h"
#include "contract/world.h"
#include "forms/form.h"
#include "forms/menu.h"
#include "forms/peer.h"
#include "forms/textBox.h"
#include "forms/timer.h"
#include "platform/comdlg32.h"
#include "platform/dialogs.h"
#include "platform/keySender.h"
#include "platform/user32.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <array>
#include <chrono>

namespace {

using contract::Dialog;
using contract::Guest;
using contract::joined;
using contract::World;

constexpr int longHang = 30'000; // milliseconds; each test ends it before

/// A modal form that goes as soon as it has come.
class ShortDialog : public Dialog {
  public:
    ShortDialog() {
        close.setInterval(1);
        close.onTimer = [this] { unload(); };
        close.setEnabled(true);
    }
    forms::Timer close;
};

/// Counts how often we wait for a window of another thread in vain.
class Waits {
  public:
    Waits() { inVain_ = 0; }
    static int inVain() { return inVain_; }

  private:
    static LRESULT WINAPI send(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT flags,
                               UINT timeout, PDWORD_PTR result) {
        const LRESULT sent = original_(window, message, wParam, lParam, flags, timeout, result);
        inVain_ += sent == 0 ? 1 : 0;
        return sent;
    }

    static inline int inVain_ = 0;
    static inline decltype(&SendMessageTimeoutA) original_ = nullptr;
    contract::ImportHook hook_{"SendMessageTimeoutA", &send, original_};
};

/// Counts the changes of other programs' windows that the system would carry out at once: it leaves one with
/// the other thread only while the input of the two is not joined. Wine always does.
class ChangesAtOnce {
  public:
    ChangesAtOnce() {
        count_ = 0;
        all_ = 0;
    }
    static int count() { return count_; }
    static int all() { return all_; }

  private:
    static BOOL WINAPI place(HWND window, HWND after, int x, int y, int width, int height, UINT flags) {
        if (win32::isForeign(window)) {
            ++all_;
            count_ += joined(window) || (flags & SWP_ASYNCWINDOWPOS) == 0 ? 1 : 0;
        }
        return original_(window, after, x, y, width, height, flags);
    }

    static inline int count_ = 0;
    static inline int all_ = 0;
    static inline decltype(&SetWindowPos) original_ = nullptr;
    contract::ImportHook hook_{"SetWindowPos", &place, original_};
};

/// Asked for again: a window manager may move the keyboard a moment later.
void takeFront(platform::HWND editor) {
    REQUIRE(World::until([&] {
        SetForegroundWindow(win32::native(editor));
        return GetForegroundWindow() == win32::native(editor);
    }));
}

bool hasFocus(forms::TextBox& field) {
    return GetFocus() == win32::native(field.hWnd());
}

void type(char32_t character) {
    const platform::KeyStroke typed{.character = character};
    platform::sendKeys({&typed, 1}, false);
}

/// Presses Cancel in a dialog of the system that comes up.
class Canceller {
  public:
    explicit Canceller(const char* title) {
        timer_.setInterval(10);
        timer_.onTimer = [title] {
            if (const HWND dialog = FindWindowA("#32770", title); IsWindowVisible(dialog) != FALSE)
                PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
        };
        timer_.setEnabled(true);
    }

  private:
    forms::Timer timer_;
};

void openFile(platform::HWND owner) {
    std::array<char, MAX_PATH> file{};
    platform::OPENFILENAMEA record{};
    record.hwndOwner = owner;
    record.lpstrFilter = "All\0*.*\0";
    record.lpstrFile = file.data();
    record.nMaxFile = static_cast<std::uint32_t>(file.size());
    record.lpstrTitle = "open";
    platform::GetOpenFileNameA(record);
}

void openMenu(forms::Form& owner) {
    forms::Menu menu;
    menu.items.push_back({0, "entry"});
    forms::Timer close;
    close.setInterval(10);
    close.onTimer = [] { EndMenu(); };
    close.setEnabled(true);
    forms::popUp(owner, menu);
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/joinedHosts");

TEST_CASE("nothing that comes up or goes waits for a host that has the keyboard and hangs") {
    World world;
    Dialog owner; // hidden: the program's own window
    const HWND hidden = win32::native(owner.window());
    const platform::HWND editor = world.openEditor();
    Guest guest(editor);
    Dialog shown;
    const auto hang = [&] { world.hangOtherProgram(longHang); };
    const Waits waits;
    int most = 1; // waits since it hangs
    const auto beside = [&](const std::function<void()>& change) {
        change();
        CHECK(world.otherProgramHangs());
        CHECK(Waits::inVain() <= most);
    };
    SUBCASE("a form") {
        hang();
        beside([&] { shown.show(); });
        CHECK(World::until([&] { return GetForegroundWindow() == win32::native(shown.hWnd()); }));
        beside([&] { shown.hide(); });
    }
    SUBCASE("a modal form") {
        hang();
        beside([] { ShortDialog().showModal(); });
    }
    SUBCASE("a form that goes, and the host is to be in front") {
        takeFront(editor);
        shown.show();
        REQUIRE(World::until([&] { return GetForegroundWindow() == win32::native(shown.hWnd()); }));
        hang();
        beside([&] { shown.unload(); });
    }
    SUBCASE("a menu") {
        hang();
        beside([&] { openMenu(owner); });
    }
    SUBCASE("a message") {
        const Canceller cancel("message");
        hang();
        beside([] { platform::msgBox("text", platform::criticalStyle, "message"); });
    }
    SUBCASE("a file dialog") {
        const Canceller cancel("open");
        hang();
        beside([&] { openFile(owner.hWnd()); });
    }
    SUBCASE("a form that comes out of the host and has the focus") {
        takeFront(editor);
        SetFocus(win32::native(guest.hWnd()));
        REQUIRE(World::until([&] { return GetFocus() == win32::native(guest.hWnd()); }));
        hang();
        beside([&] { platform::SetParent(guest.hWnd(), platform::HWND::none); });
    }
    SUBCASE("a form on the desktop that is to come out") {
        shown.show();
        takeFront(editor);
        hang();
        beside([&] { platform::SetParent(shown.hWnd(), platform::HWND::none); });
    }
    SUBCASE("the program's hidden window") {
        hang();
        most = 0; // nobody sees it
        beside([&] { platform::SetWindowPos(owner.hWnd(), 0, 0, 0, 0, 0, 3); });
        CHECK(GetForegroundWindow() != hidden);
    }
    SUBCASE("a form that is to stay in front of all others") {
        shown.show();
        takeFront(editor);
        hang();
        beside([&] { platform::SetWindowPos(shown.hWnd(), -1, 0, 0, 0, 0, 3); });
        CHECK(GetForegroundWindow() == win32::native(shown.hWnd()));
    }
    SUBCASE("the focus") {
        hang();
        beside([&] { guest.field.setFocus(); });
    }
    CHECK(guest.hWnd() != platform::HWND::none);
    world.killOtherProgram();
}

TEST_CASE("a host that hangs is not joined while its own window is raised or moved") {
    World world;
    const platform::HWND editor = world.openEditor();
    const Guest guest(editor);
    REQUIRE(joined(editor));
    const ChangesAtOnce changes;
    const Waits waits;
    world.hangOtherProgram(longHang);
    SUBCASE("raised by a click") {
        platform::BringWindowToTop(editor);
    }
    SUBCASE("put on top, as a toolbar does that takes its height") {
        platform::SetWindowPos(editor, 0, 0, 0, 0, 0, 3);
    }
    SUBCASE("moved") {
        platform::MoveWindow(editor, 0, 0, 300, 300, true);
    }
    CHECK(ChangesAtOnce::all() == 1);
    CHECK(ChangesAtOnce::count() == 0);
    CHECK(Waits::inVain() == 1);
    world.killOtherProgram();
}

TEST_CASE("a dialog of a toolbar goes while the toolbar's own host hangs, and leaves it enabled") {
    World world;
    const platform::HWND editor = world.openEditor();
    Guest guest(editor);
    contract::withUser(
        contract::dialogClass, [&] { openFile(guest.hWnd()); },
        [&](HWND dialog) {
            CHECK(contract::comes([&] { return IsWindowEnabled(win32::native(editor)) == FALSE; }));
            world.hangOtherProgram(longHang);
            PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
        });
    CHECK(world.otherProgramHangs());
    world.wakeOtherProgram();
    // Under Wine a window of another program is enabled when that wakes.
    CHECK(World::until([&] { return IsWindowEnabled(win32::native(editor)) != FALSE; }));
}

TEST_CASE("what is typed into a field of ours while its host is busy for a moment arrives there") {
    World world;
    const platform::HWND editor = world.openEditor();
    Guest guest(editor);
    takeFront(editor);
    guest.field.setFocus();
    REQUIRE(World::until([&] { return hasFocus(guest.field); }));
    const auto begin = std::chrono::steady_clock::now();
    world.hangOtherProgram(900);
    // Longer than a change of ours would wait for it.
    World::until([&] { return std::chrono::steady_clock::now() - begin > std::chrono::milliseconds(600); });
    type('x');
    CHECK(World::until([&] { return guest.field.text() == "x"; }));
    CHECK(world.editorText(editor).empty());
}

TEST_CASE("a click on a field of ours is not lost while its host is busy, nor while it hangs") {
    World world;
    const platform::HWND editor = world.openEditor();
    Guest guest(editor);
    takeFront(editor);
    const HWND frame = win32::native(guest.frame.hWnd());
    RECT place{};
    GetWindowRect(win32::native(guest.field.hWnd()), &place);
    SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    const auto click = [&] {
        const LRESULT result =
            SendMessageA(frame, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(win32::native(editor)),
                         MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
        SetFocus(win32::native(guest.field.hWnd())); // as the field does when it hears of the click
        return result;
    };
    SUBCASE("busy") {
        world.hangOtherProgram(500);
        CHECK(click() == MA_ACTIVATE);
    }
    SUBCASE("hangs") {
        world.hangOtherProgram(longHang);
        CHECK(click() == MA_NOACTIVATE);
        CHECK_FALSE(joined(editor));
        world.wakeOtherProgram();
        CHECK(World::until([&] { return joined(editor); }));
    }
    CHECK(World::until([&] { return hasFocus(guest.field); }));
    type('x');
    CHECK(World::until([&] { return guest.field.text() == "x"; }));
    CHECK(world.editorText(editor).empty());
}

TEST_SUITE_END();
