// In which view of the screens windows are made and calls are made. At 96 dpi all views show the same, so
// that only the thread's own view tells at the moment of a call.
#include "contract/toolForm.h"
#include "contract/windows/hiddenMainForm.h"
#include "contract/windows/importHook.h"
#include "contract/windows/ownProcess.h"
#include "contract/windows/tips.h"
#include "contract/windows/withoutViews.h"
#include "contract/world.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/menu.h"
#include "forms/textBox.h"
#include "forms/toolbar.h"
#include "platform/awareness.h"
#include "platform/screen.h"
#include "platform/user32.h"
#include "win32/common/holding.h"
#include "win32/common/native.h"
#include "win32/common/systemDialog.h"
#include "win32/common/systemLibrary.h"
#include "win32/common/views.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using contract::World;
using win32::native;
using win32::View;

/// As the system numbers them: unaware, of the main screen, of each screen.
constexpr int views[] = {0, 1, 2};

View viewNumbered(int number) {
    constexpr LONG_PTR perMonitorTwo = -4;
    return reinterpret_cast<View>(number == 2 ? perMonitorTwo : LONG_PTR{-1} - number);
}

int numberOf(View view) {
    static const auto asked = win32::routineOf<int(WINAPI*)(View)>(win32::systemLibrary(L"user32.dll"),
                                                                   "GetAwarenessFromDpiAwarenessContext");
    return asked == nullptr ? -1 : asked(view);
}

int viewOfThread() {
    static const auto asked = win32::routineOf<View(WINAPI*)()>(win32::systemLibrary(L"user32.dll"),
                                                                "GetThreadDpiAwarenessContext");
    return asked == nullptr ? -1 : numberOf(asked());
}

int viewOf(HWND window) {
    return numberOf(win32::viewOf(window));
}

int viewOf(forms::Control& control) {
    return viewOf(native(control.hWnd()));
}

/// A window that is a host's in all but its process.
class Host {
  public:
    explicit Host(int view) {
        const win32::Seeing seen(viewNumbered(view));
        window_ = CreateWindowExA(WS_EX_NOACTIVATE, "STATIC", "host", WS_OVERLAPPEDWINDOW, 100, 120, 800, 600,
                                  nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
        ShowWindow(window_, SW_SHOWNOACTIVATE);
    }
    ~Host() { DestroyWindow(window_); }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    platform::HWND window() const { return win32::neutral(window_); }

  private:
    HWND window_;
};

/// Made in a host as the program makes its forms.
class HostedForm : public contract::ToolForm {
  public:
    explicit HostedForm(const Host& host) {
        const platform::InAwarenessOf seen(host.window());
        frame.border = false;
        frame.place(*this, {0, 0, 1500, 270});
        box.place(frame, {0, 0, 600, 270});
        bar.place(*this, {});
        show();
        platform::SetParent(hWnd(), host.window());
        platform::SetParent(frame.hWnd(), host.window());
    }
    forms::Frame frame;
    forms::TextBox box;
    forms::Toolbar bar;
};

/// Writes down in which view the thread is whenever the program calls a function of the system.
template <int number, typename Function>
class Spy;
template <int number, typename Result, typename... Arguments>
class Spy<number, Result WINAPI(Arguments...)> {
  public:
    explicit Spy(const char* name) : hook_(name, &call, original) {
        seen.clear();
        const bool met = original != nullptr;
        REQUIRE(met);
    }

    /// One call at least, and each in this view.
    static bool allIn(int view) {
        return !seen.empty() && std::ranges::all_of(seen, [view](int found) { return found == view; });
    }
    static inline std::vector<int> seen;

  private:
    static inline Result(WINAPI* original)(Arguments...) = nullptr;
    static Result WINAPI call(Arguments... arguments) {
        seen.push_back(viewOfThread());
        return original(arguments...);
    }

    contract::ImportHook hook_;
};

BOOL WINAPI chooseNothing(HMENU /*menu*/, UINT /*flags*/, int /*x*/, int /*y*/, int /*reserved*/,
                          HWND /*owner*/, const RECT* /*area*/) {
    Spy<0, decltype(TrackPopupMenu)>::seen.push_back(viewOfThread());
    return FALSE;
}

bool hasViews() {
    return viewOfThread() >= 0;
}

} // namespace

namespace contract {

namespace {

FARPROC(WINAPI* found)(HMODULE, LPCSTR) = nullptr;

FARPROC WINAPI foundOnOldWindows(HMODULE library, LPCSTR name) {
    constexpr const char* later[] = {"GetWindowDpiAwarenessContext", "GetThreadDpiAwarenessContext",
                                     "SetThreadDpiAwarenessContext", "GetDpiForWindow",
                                     "AdjustWindowRectExForDpi",     "GetDpiForMonitor"};
    const bool missing =
        std::ranges::any_of(later, [name](const char* each) { return std::string(each) == name; });
    return missing ? nullptr : found(library, name);
}

} // namespace

int withoutViewsMain() {
    const ImportHook hook("GetProcAddress", &foundOnOldWindows, found);
    if (found == nullptr)
        return 1;
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    const HWND host = CreateWindowExA(WS_EX_NOACTIVATE, "STATIC", "host", WS_OVERLAPPEDWINDOW, 100, 120, 800,
                                      600, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    if (win32::viewOf(host) != nullptr || win32::ownView() != nullptr ||
        win32::enter(viewNumbered(0)) != nullptr)
        return 2;
    if (platform::dpiOf(win32::neutral(host)) != dpi || platform::screenDpi() != dpi)
        return 3;
    const platform::InAwarenessOf seen(win32::neutral(host));
    ToolForm form;
    forms::Toolbar bar;
    bar.place(form, {});
    form.show();
    platform::SetParent(form.hWnd(), win32::neutral(host));
    if (GetAncestor(native(form.hWnd()), GA_PARENT) != host)
        return 4;
    RECT client{};
    GetClientRect(native(form.hWnd()), &client);
    if (client.right != form.resolution().toPixels(1800) || client.bottom != form.resolution().toPixels(300))
        return 5;
    DestroyWindow(host);
    return platform::dpiOf(win32::neutral(host)) == 0 ? fineWithoutViews : 6;
}

} // namespace contract

TEST_SUITE_BEGIN("contract/windows/seeing");

TEST_CASE("on a Windows without views of windows all see what the program sees") {
    const World world;
    const int code = contract::exitCodeOfOwn(contract::withoutViewsArgument);
    CHECK(code == contract::fineWithoutViews);
}

TEST_CASE("a window's view is entered and left, whatever it was before" * doctest::skip(!hasViews())) {
    const World world;
    const int own = viewOfThread();
    for (const int outer : views)
        for (const int inner : views) {
            const Host first(outer);
            const Host second(inner);
            {
                const platform::InAwarenessOf seen(first.window());
                CHECK(viewOfThread() == outer);
                {
                    const platform::InAwarenessOf within(second.window());
                    CHECK(viewOfThread() == inner);
                }
                CHECK(viewOfThread() == outer);
                const platform::InAwarenessOf dead(platform::HWND::none);
                CHECK(viewOfThread() == outer);
            }
            CHECK(viewOfThread() == own);
            CHECK(platform::dpiOf(first.window()) >= forms::Resolution::designDpi);
        }
    CHECK(platform::dpiOf(platform::HWND::none) == 0);
}

TEST_CASE("what goes into a host is made in its view, and what is made for that later" *
          doctest::skip(!hasViews())) {
    const World world;
    for (const int view : views) {
        CAPTURE(view);
        const Host host(view);
        HostedForm form(host);
        CHECK(viewOf(form) == view);
        CHECK(viewOf(form.frame) == view);
        CHECK(viewOf(form.box) == view);
        CHECK(viewOf(form.bar) == view);
        CHECK(viewOf(reinterpret_cast<HWND>(SendMessageA(native(form.bar.hWnd()), TB_GETTOOLTIPS, 0, 0))) ==
              view);
        // A window inside another one would see what that sees under Wine, whatever the thread's view is.
        const Spy<5, decltype(CreateWindowExW)> makings("CreateWindowExW");
        forms::Label later;
        later.place(form.frame, {600, 0, 600, 270});
        CHECK(makings.allIn(view));
        later.setToolTipText("a tip");
        CHECK(viewOf(later) == view);
        contract::pointAt(later);
        CHECK(viewOf(contract::Tip(later).window()) == view);
    }
}

TEST_CASE("a dialog that a click in a host leads to is made in our own view, and boxes are" *
          doctest::skip(!hasViews())) {
    const World world;
    const int own = viewOfThread();
    for (const int view : views) {
        CAPTURE(view);
        const Host host(view);
        const platform::InAwarenessOf seen(host.window());
        forms::Form dialog;
        dialog.load();
        CHECK(viewOf(dialog) == own);
        {
            const win32::Hold hold(nullptr);
            CHECK(viewOfThread() == own);
        }
        CHECK(viewOfThread() == view);
    }
}

TEST_CASE(
    "what a dialog of the system stands on is made in the view of what is behind it, and the dialog in ours" *
    doctest::skip(!hasViews())) {
    const World world;
    const int own = viewOfThread();
    for (const int view : views) {
        CAPTURE(view);
        const Host host(view);
        // Else, of our own process, it would be owner enough.
        ShowWindow(native(host.window()), SW_HIDE);
        const win32::SystemDialog shown(native(host.window()));
        REQUIRE(shown.owner() != nullptr);
        CHECK(GetWindow(shown.owner(), GW_OWNER) == native(host.window()));
        CHECK(viewOf(shown.owner()) == view);
        CHECK(viewOfThread() == own);
    }
}

TEST_CASE("what is hosted takes its places in the host's view, whoever asks" * doctest::skip(!hasViews())) {
    const World world;
    for (const int view : views) {
        CAPTURE(view);
        const Host host(view);
        HostedForm form(host);
        using Placing = Spy<1, decltype(SetWindowPos)>;
        const Placing spy("SetWindowPos");
        form.frame.setLeft(900);
        CHECK(spy.allIn(view));
        Placing::seen.clear();
        form.setHeight(form.height() + 900);
        CHECK(spy.allIn(view));
        Placing::seen.clear();
        form.bar.addButton("", "", forms::ButtonStyle::standard, 0);
        CHECK(form.bar.height() > 0);
        CHECK(spy.allIn(view));
    }
}

TEST_CASE("screens are asked for, and menus opened, in our own view" * doctest::skip(!hasViews())) {
    const World world;
    contract::MainForm owner;
    const int own = viewOfThread();
    for (const int view : views) {
        CAPTURE(view);
        const Host host(view);
        const platform::InAwarenessOf seen(host.window());
        const Spy<2, decltype(GetSystemMetrics)> metrics("GetSystemMetrics");
        CHECK(platform::screenWidth() > 0);
        CHECK(platform::screenHeight() > 0);
        CHECK(metrics.allIn(own));
        const Spy<3, decltype(SystemParametersInfoA)> parameters("SystemParametersInfoA");
        platform::workArea();
        CHECK(parameters.allIn(own));
        const Spy<4, decltype(MonitorFromRect)> monitors("MonitorFromRect");
        platform::workAreaAt({0, 0, 100, 100});
        CHECK(monitors.allIn(own));
        CHECK(platform::screenDpi() >= forms::Resolution::designDpi);
        Spy<0, decltype(TrackPopupMenu)>::seen.clear();
        const contract::ImportHook menus("TrackPopupMenu", reinterpret_cast<void*>(&chooseNothing));
        forms::Menu menu;
        forms::popUp(owner, menu);
        CHECK(Spy<0, decltype(TrackPopupMenu)>::allIn(own));
        CHECK(viewOfThread() == view);
    }
}

TEST_CASE("a frame is as the system has it at each resolution" * doctest::skip(!hasViews())) {
    const World world;
    using Adjust = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);
    const auto adjust =
        win32::routineOf<Adjust>(win32::systemLibrary(L"user32.dll"), "AdjustWindowRectExForDpi");
    for (const int dpi : {96, 120, 144, 192}) {
        RECT ours{0, 0, 300, 200};
        RECT systems = ours;
        constexpr DWORD style = WS_POPUP | WS_CAPTION | WS_THICKFRAME;
        win32::addFrame(ours, style, WS_EX_TOOLWINDOW, dpi);
        adjust(&systems, style, FALSE, WS_EX_TOOLWINDOW, static_cast<UINT>(dpi));
        CHECK(EqualRect(&ours, &systems) != FALSE);
    }
}

TEST_SUITE_END();
