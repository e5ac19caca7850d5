// While the error box is up: our windows live on as the system's own do, and no code of the program runs.
#include "contract/barForm.h"
#include "contract/windows/beside.h"
#include "contract/windows/endByError.h"
#include "contract/world.h"
#include "forms/button.h"
#include "forms/frame.h"
#include "forms/iconGrid.h"
#include "forms/label.h"
#include "forms/listBox.h"
#include "forms/pictureBox.h"
#include "forms/tabStrip.h"
#include "forms/textBox.h"
#include "forms/timer.h"
#include "platform/user32.h"
#include "runtime/guard.h"
#include "win32/common/holding.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <commctrl.h>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

namespace {

using contract::ask;
using contract::comes;
using contract::hasKeyboard;
using contract::World;

/// An error that nothing handles, and what happens beside the box that shows it.
void showError(const std::function<void(HWND box)>& meanwhile) {
    contract::withUser(
        contract::dialogClass,
        [] {
            CHECK_THROWS_AS(
                runtime::guarded([] { throw runtime::RuntimeError(runtime::ErrorNumber::typeMismatch); }),
                contract::EndedByError);
        },
        meanwhile);
}

/// A dialog with a field and a button.
class Dialog : public forms::Form {
  public:
    Dialog() {
        setClientSize(4500, 1800);
        field.place(*this, {150, 150, 3000, 300});
        field.setText("text");
        button.place(*this, {150, 900, 1500, 375});
        button.onClick = [this] { ++events; };
        field.onChange = [this] { ++events; };
        field.onMouseMove = [this](int, int, float, float) { ++events; };
    }
    void Form_Click() override { ++events; }
    void Form_Resize() override { ++events; }
    void Form_QueryUnload(bool& /*cancel*/) override { ++events; }

    forms::TextBox field;
    forms::CommandButton button;
    std::atomic<int> events = 0;
};

/// A dialog with one control of each kind that the program has.
class AllKinds : public Dialog {
  public:
    AllKinds() {
        float top = 1500;
        for (forms::Control* control : more())
            control->place(*this, {3500, top += 300, 1500, 285});
        setClientSize(6000, top + 600);
    }
    std::vector<forms::Control*> controls() {
        std::vector<forms::Control*> all{this, &field, &button};
        for (forms::Control* control : more())
            all.push_back(control);
        return all;
    }

  private:
    std::vector<forms::Control*> more() {
        return {&label, &line, &image, &check, &option, &list, &combo, &picture, &strip, &grid};
    }
    forms::Label label;
    forms::Line line;
    forms::Image image;
    forms::CheckBox check;
    forms::OptionButton option;
    forms::ListBox list;
    forms::ComboBox combo;
    forms::PictureBox picture;
    forms::TabStrip strip;
    forms::IconGrid grid;
};

/// The two that stand in a host's window: a toolbar, and a frame with a field.
class Guest : public contract::BarForm {
  public:
    explicit Guest(platform::HWND host) {
        frame.place(*this, {0, 0, 1500, 600});
        field.place(frame, {0, 0, 1200, 300});
        show();
        platform::SetParent(hWnd(), host);
        platform::MoveWindow(hWnd(), 0, 60, 200, 60, true);
        platform::SetParent(frame.hWnd(), host);
    }
    forms::Frame frame;
    forms::TextBox field;
};

/// Counts one of the messages that a window gets.
class Counter {
  public:
    Counter(HWND window, UINT message) : window_(window), message_(message) {
        SetWindowSubclass(window_, hear, 2, reinterpret_cast<DWORD_PTR>(this));
    }
    ~Counter() { RemoveWindowSubclass(window_, hear, 2); }
    Counter(const Counter&) = delete;
    Counter& operator=(const Counter&) = delete;

    HWND window() const { return window_; }

    std::atomic<int> count = 0;

  private:
    static LRESULT CALLBACK hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                 DWORD_PTR counter) {
        auto& self = *reinterpret_cast<Counter*>(counter);
        if (message == self.message_)
            ++self.count;
        return DefSubclassProc(window, message, wParam, lParam);
    }

    HWND window_;
    UINT message_;
};

/// Whether the box comes in front, and an Enter of the user's closes it.
void checkKeyboard(const char* over) {
    bool closed = false;
    showError([&](HWND box) { closed = contract::closeBy(box, platform::Key::enter); });
    CAPTURE(std::string(over));
    CHECK(closed);
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/errorBox");

TEST_CASE("the error box has the keyboard over each kind of window of ours") {
    World world;
    {
        Dialog dialog;
        dialog.show();
        checkKeyboard("a dialog");
        const win32::Hold held(dialog);
        checkKeyboard("a modal dialog");
    }
    {
        forms::Form plain;
        plain.controlBox = false;
        plain.showInTaskbar = false;
        plain.setClientSize(3000, 1500);
        plain.show();
        checkKeyboard("a form without a title");
    }
    const platform::HWND editor = world.openEditor();
    Guest guest(editor);
    checkKeyboard("a toolbar in the window in front");
    guest.field.setFocus();
    REQUIRE(World::until([&] { return GetFocus() == win32::native(guest.field.hWnd()); }));
    checkKeyboard("a field in the window in front");
}

TEST_CASE("under the error box a window of each kind is painted once") {
    World world;
    AllKinds all;
    all.show();
    forms::Form plain;
    plain.controlBox = false;
    plain.showInTaskbar = false;
    plain.setClientSize(1500, 1500);
    plain.show();
    Guest guest(world.openWindow("host", {100, 400, 900, 720}));
    std::vector<forms::Control*> controls = all.controls();
    for (forms::Control* other :
         {static_cast<forms::Control*>(&plain), static_cast<forms::Control*>(&guest),
          static_cast<forms::Control*>(&guest.bar), static_cast<forms::Control*>(&guest.frame)})
        controls.push_back(other);
    std::vector<std::unique_ptr<Counter>> counters;
    for (forms::Control* control : controls) {
        const HWND window = win32::native(control->hWnd());
        INFO("control ", static_cast<int>(control->kind()));
        REQUIRE(IsWindowVisible(window) != FALSE);
        World::until([window] { return GetUpdateRect(window, nullptr, FALSE) == FALSE; });
        counters.push_back(std::make_unique<Counter>(window, WM_PAINT));
    }
    std::vector<int> counts;
    showError([&](HWND box) {
        comes([box] { return hasKeyboard(box); });
        for (const auto& counter : counters)
            comes([&] { return ask(counter->window(), WM_NULL) == 0; });
        // One after the other: a window that is painted may have those that stand in it painted too.
        for (const auto& counter : counters) {
            counter->count = 0;
            InvalidateRect(counter->window(), nullptr, TRUE);
            comes([&] { return counter->count > 0; });
            for (int look = 0; look < 20; ++look)
                ask(box, WM_NULL);
            counts.push_back(counter->count);
        }
        for (const auto& counter : counters)
            counter->count = 0;
        Sleep(200);
        for (const auto& counter : counters)
            counts.push_back(counter->count);
    });
    REQUIRE(counts.size() == 2 * controls.size());
    for (std::size_t number = 0; number < controls.size(); ++number) {
        INFO("control ", static_cast<int>(controls[number]->kind()));
        CHECK(counts[number] == 1);
        CHECK(counts[controls.size() + number] == 0); // none goes on
    }
}

TEST_CASE(
    "under the error box our windows let the session end and the front change, and speak for themselves") {
    World world;
    Dialog dialog;
    dialog.show();
    Guest guest(world.openWindow("host", {100, 400, 900, 720}));
    for (forms::Control* form : {static_cast<forms::Control*>(&dialog), static_cast<forms::Control*>(&guest),
                                 static_cast<forms::Control*>(&guest.frame)}) {
        LRESULT sessionMayEnd = FALSE;
        LRESULT frontMayChange = FALSE;
        showError([&](HWND /*box*/) {
            sessionMayEnd = ask(win32::native(form->hWnd()), WM_QUERYENDSESSION);
            frontMayChange = ask(win32::native(form->hWnd()), WM_NCACTIVATE, FALSE);
        });
        CHECK(sessionMayEnd == TRUE);
        CHECK(frontMayChange == TRUE);
    }
    LRESULT length = 0;
    LRESULT styles = 0;
    showError([&](HWND /*box*/) {
        length = ask(win32::native(dialog.field.hWnd()), WM_GETTEXTLENGTH);
        styles = ask(win32::native(guest.bar.hWnd()), TB_GETSTYLE);
    });
    CHECK(length == 4);
    CHECK((styles & TBSTYLE_WRAPABLE) != 0);
}

TEST_CASE("under the error box no code of the program runs") {
    const World world;
    Dialog dialog;
    dialog.show();
    forms::Timer timer;
    timer.setInterval(20);
    timer.onTimer = [&] { ++dialog.events; };
    timer.setEnabled(true);
    World::until([&] { return dialog.events > 0; });
    int before = 0;
    int after = 0;
    showError([&](HWND box) {
        before = dialog.events;
        const HWND form = win32::native(dialog.hWnd());
        const HWND field = win32::native(dialog.field.hWnd());
        ask(form, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        ask(form, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        ask(field, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        ask(field, WM_CHAR, 'x');
        ask(win32::native(dialog.button.hWnd()), BM_CLICK);
        SetWindowPos(form, nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        Sleep(100); // several times the timer's interval
        ask(box, WM_NULL);
        after = dialog.events;
    });
    CHECK(after == before);
}

TEST_SUITE_END();
