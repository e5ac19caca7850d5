// What the system's default handling would pass on from a hosted window to its host, which may be busy.
#include "contract/toolForm.h"
#include "contract/world.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/textBox.h"
#include "forms/toolbar.h"
#include "platform/user32.h"
#include "win32/common/holding.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <commctrl.h>

#include <chrono>
#include <vector>

namespace {

using contract::World;

/// A toolbar form, and a frame that can be hosted without it.
class HostedForm : public contract::ToolForm {
  public:
    explicit HostedForm(platform::HWND host) {
        frame.border = false;
        frame.place(*this, {0, 0, 1500, 270});
        bar.place(*this, {});
        show();
        platform::SetParent(hWnd(), host);
        platform::SetParent(frame.hWnd(), host);
    }
    forms::Frame frame;
    forms::Toolbar bar;
};

HWND native(forms::Control& control) {
    return reinterpret_cast<HWND>(control.hWnd());
}

/// Counts what a control's window is told.
class Listener {
  public:
    explicit Listener(forms::Control& control) : window_(native(control)) {
        SetWindowSubclass(window_, hear, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~Listener() { RemoveWindowSubclass(window_, hear, 1); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    int colourChanges = 0;
    std::vector<UINT> placings; ///< flags SWP_* of each

  private:
    static LRESULT CALLBACK hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                 DWORD_PTR listener) {
        auto& self = *reinterpret_cast<Listener*>(listener);
        if (message == WM_SYSCOLORCHANGE)
            ++self.colourChanges;
        else if (message == WM_WINDOWPOSCHANGING)
            self.placings.push_back(reinterpret_cast<const WINDOWPOS*>(lParam)->flags);
        return DefSubclassProc(window, message, wParam, lParam);
    }

    HWND window_;
};

void checkReturnsSoon(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto begin = std::chrono::steady_clock::now();
    SendMessageA(window, message, wParam, lParam);
    INFO("message ", message);
    CHECK(std::chrono::steady_clock::now() - begin < std::chrono::seconds(2));
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/hostedWindow");

TEST_CASE("pointer, wheel, menu and Alt key over a hosted window do not wait for a host that hangs") {
    World world;
    const platform::HWND host = world.openWindow("host", {100, 120, 900, 720});
    HostedForm form(host);
    world.hangOtherProgram(120'000);
    constexpr LPARAM withAlt = 0x20000000;
    for (forms::Control* control :
         {static_cast<forms::Control*>(&form), static_cast<forms::Control*>(&form.bar),
          static_cast<forms::Control*>(&form.frame)}) {
        const HWND window = native(*control);
        checkReturnsSoon(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                         MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        checkReturnsSoon(window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(reinterpret_cast<HWND>(host)),
                         MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
        checkReturnsSoon(window, WM_RBUTTONUP, 0, MAKELPARAM(5, 5));
        checkReturnsSoon(window, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
        checkReturnsSoon(window, WM_SYSKEYDOWN, VK_MENU, withAlt);
        checkReturnsSoon(window, WM_SYSKEYUP, VK_MENU, withAlt);
        checkReturnsSoon(window, WM_SYSKEYDOWN, VK_F10, 0);
        checkReturnsSoon(window, WM_SYSKEYUP, VK_F10, 0);
    }
    // A click on a frame gives the focus to a field in it: the click arrives, and the host is not activated.
    CHECK(SendMessageA(native(form.frame), WM_MOUSEACTIVATE,
                       reinterpret_cast<WPARAM>(reinterpret_cast<HWND>(host)),
                       MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)) == MA_NOACTIVATE);
    world.killOtherProgram();
}

TEST_CASE("a hosted form that a dialog holds eats the clicks and stays enabled, or its host would get them") {
    World world;
    const platform::HWND host = world.openWindow("host", {100, 120, 900, 720});
    HostedForm form(host);
    const auto click = [&](forms::Control& control) {
        return SendMessageA(native(control), WM_MOUSEACTIVATE,
                            reinterpret_cast<WPARAM>(reinterpret_cast<HWND>(host)),
                            MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    };
    {
        const win32::Hold hold(nullptr);
        CHECK(click(form.bar) == MA_NOACTIVATEANDEAT);
        CHECK(click(form.frame) == MA_NOACTIVATEANDEAT);
        CHECK(IsWindowEnabled(native(form)));
        CHECK(IsWindowEnabled(native(form.frame)));
        HostedForm later(host);
        CHECK(click(later.bar) == MA_NOACTIVATEANDEAT);
        CHECK(IsWindowEnabled(native(later)));
    }
    CHECK(click(form.bar) == MA_NOACTIVATE);
    CHECK(click(form.frame) == MA_ACTIVATE);
}

TEST_CASE("new colours of the system, told to top-level windows, reach the controls in a host's window") {
    World world;
    HostedForm form(world.openWindow("host", {100, 120, 900, 720}));
    forms::TextBox field;
    field.place(form.frame, {0, 0, 600, 285});
    const Listener bar(form.bar);
    const Listener inFrame(field);
    forms::Form top;
    top.show();
    SendMessageA(native(top), WM_SYSCOLORCHANGE, 0, 0);
    CHECK(bar.colourChanges == 1);
    SendMessageA(native(form), WM_SYSCOLORCHANGE, 0, 0); // a host that passes it on
    CHECK(bar.colourChanges == 2);
    // The frame was taken out of its form, which still is what speaks for it.
    CHECK(inFrame.colourChanges == 2);
}

TEST_CASE("a window that is put where it stands already stays as it is") {
    World world;
    const platform::HWND host = world.openWindow("host", {100, 120, 900, 720});
    HostedForm form(host);
    const Listener listener(form);
    CHECK(platform::SetParent(form.hWnd(), host) == host);
    CHECK(listener.placings.empty());
}

TEST_CASE("what a hosted window uncovers by a move its host erases by itself") {
    World world;
    HostedForm form(world.openWindow("host", {100, 120, 900, 720}));
    const Listener moved(form);
    const Listener placed(form.frame);
    platform::MoveWindow(form.hWnd(), 50, 60, 120, 40, true);
    form.frame.setLeft(3000);
    REQUIRE(!moved.placings.empty());
    REQUIRE(!placed.placings.empty());
    CHECK((moved.placings.front() & SWP_DEFERERASE) != 0);
    CHECK((placed.placings.front() & SWP_DEFERERASE) != 0);
    const std::size_t before = moved.placings.size();
    form.setHeight(form.height() + 450);
    REQUIRE(moved.placings.size() > before);
    CHECK((moved.placings.back() & SWP_DEFERERASE) != 0);
}

TEST_CASE("a host that is busy while its drawing is switched on again draws afterwards") {
    World world;
    const platform::HWND host = world.openWindow("host", {100, 120, 900, 720});
    const auto draws = [host] {
        return (GetWindowLongA(reinterpret_cast<HWND>(host), GWL_STYLE) & WS_VISIBLE) != 0;
    };
    platform::SendMessageA(host, WM_SETREDRAW, 0, 0);
    REQUIRE_FALSE(draws());
    world.hangOtherProgram(5'000);
    platform::SendMessageA(host, WM_SETREDRAW, static_cast<std::uintptr_t>(-1), 0);
    world.wakeOtherProgram();
    CHECK(World::until(draws));
}

TEST_SUITE_END();
