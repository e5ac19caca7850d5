// The program parts from a host that hangs, and is joined with it again when that answers.
#include "contract/windows/hostGuest.h"
#include "contract/windows/importHook.h"
#include "contract/world.h"
#include "platform/user32.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

namespace {

using contract::Dialog;
using contract::Guest;
using contract::joined;
using contract::World;

constexpr int longHang = 60'000; // milliseconds; each test ends it before

/// Keeps count of how often our thread and the host's are joined, as Windows does and Wine does not. A host
/// of the test before, whose end the program has still to see, is none of it.
class Joins {
  public:
    Joins() {
        count_ = 0;
        host_ = 0;
    }
    static int count() { return count_; }

  private:
    static BOOL WINAPI attach(DWORD ours, DWORD thread, BOOL on) {
        if (thread != host_)
            return attach_(ours, thread, on);
        if (on == FALSE && count_ == 0)
            return FALSE;
        count_ += on == FALSE ? -1 : 1;
        if (count_ == 0 || (count_ == 1 && on != FALSE))
            while (attach_(ours, thread, on) != FALSE && on == FALSE)
                ;
        return TRUE;
    }
    static HWND WINAPI setParent(HWND window, HWND parent) {
        const HWND former = setParent_(window, parent);
        if (former != nullptr && win32::isForeign(former) && former != GetDesktopWindow() && count_ > 0)
            --count_;
        if (parent != nullptr && win32::isForeign(parent)) {
            host_ = GetWindowThreadProcessId(parent, nullptr);
            ++count_;
        }
        return former;
    }

    static inline int count_ = 0;
    static inline DWORD host_ = 0; ///< its thread
    static inline decltype(&AttachThreadInput) attach_ = nullptr;
    static inline decltype(&SetParent) setParent_ = nullptr;
    contract::ImportHook attaching_{"AttachThreadInput", &attach, attach_};
    contract::ImportHook hosting_{"SetParent", &setParent, setParent_};
};

/// The system takes the question whether a host answers, and never brings the answer.
class LostAnswers {
  private:
    static BOOL WINAPI ask(HWND /*window*/, UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/,
                           SENDASYNCPROC /*answer*/, ULONG_PTR /*data*/) {
        return TRUE;
    }
    contract::ImportHook hook_{"SendMessageCallbackA", reinterpret_cast<void*>(ask)};
};

} // namespace

TEST_SUITE_BEGIN("contract/windows/parting");

TEST_CASE("a host that answers stays joined, one that hangs is joined again when it answers") {
    World world;
    const platform::HWND editor = world.openEditor();
    Guest guest(editor);
    Dialog shown;
    shown.show();
    shown.hide();
    CHECK(joined(editor));
    world.hangOtherProgram(longHang);
    shown.show();
    CHECK_FALSE(joined(editor));
    shown.hide();
    world.wakeOtherProgram();
    CHECK(World::until([&] { return joined(editor); }));
    CHECK(guest.hWnd() != platform::HWND::none);
}

TEST_CASE("a host that hangs is left without a change of ours, since the user may click on our windows") {
    World world;
    const platform::HWND editor = world.openEditor();
    Guest guest(editor);
    REQUIRE(joined(editor));
    world.hangOtherProgram(longHang);
    CHECK(World::until([&] { return !joined(editor); }));
    world.wakeOtherProgram();
    CHECK(World::until([&] { return joined(editor); }));
}

TEST_CASE("a host is joined again once for each window of ours, whenever that went in") {
    World world;
    const Joins joins;
    const platform::HWND editor = world.openEditor();
    const Guest before(editor);
    CHECK(Joins::count() == 2);
    world.hangOtherProgram(longHang);
    Dialog shown;
    shown.show();
    shown.hide();
    CHECK(Joins::count() == 0);
    Guest meanwhile(editor);
    // As a toolbar does when it takes its height.
    platform::SetParent(meanwhile.hWnd(), platform::HWND::none);
    platform::SetParent(meanwhile.hWnd(), editor);
    CHECK(Joins::count() == 0);
    world.wakeOtherProgram();
    CHECK(World::until([] { return Joins::count() == 4; }));
}

TEST_CASE("a host whose window went before it answered is joined again by another one") {
    World world;
    const platform::HWND asked = world.openEditor();
    const Guest guest(asked);
    const platform::HWND other = world.openEditor();
    const Guest stays(other);
    {
        const LostAnswers lost;
        world.hangOtherProgram(longHang);
        Dialog shown;
        shown.show();
        shown.hide();
    }
    CHECK_FALSE(joined(other));
    world.wakeOtherProgram();
    world.closeWindow(asked);
    CHECK(World::until([&] { return joined(other); }));
}

TEST_CASE("a press on the frame of a form in a host that hangs does not bring that to the front") {
    World world;
    const platform::HWND editor = world.openEditor();
    Guest guest(editor);
    world.hangOtherProgram(longHang);
    const auto press = [&](int place) {
        return SendMessageA(win32::native(guest.hWnd()), WM_MOUSEACTIVATE,
                            reinterpret_cast<WPARAM>(win32::native(editor)),
                            MAKELPARAM(place, WM_LBUTTONDOWN));
    };
    CHECK(press(HTCLIENT) == MA_NOACTIVATE);
    CHECK(joined(editor));
    CHECK(press(HTCAPTION) == MA_NOACTIVATE);
    CHECK_FALSE(joined(editor));
    world.killOtherProgram();
}

TEST_SUITE_END();
