// When our windows are painted: while the program is at work that takes long, and when a text is assigned.
#include "contract/toolForm.h"
#include "contract/windows/importHook.h"
#include "contract/world.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/pictureBox.h"
#include "forms/tabStrip.h"
#include "platform/kernel32.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <string>
#include <vector>

namespace {

/// Windows that were asked to be painted.
std::vector<HWND> asked;
/// Whether each font that a window has got asked for that too.
std::vector<bool> fonts;
decltype(&SendMessageA) systemSend = nullptr;

BOOL WINAPI noteWindow(HWND window, const RECT* /*area*/, BOOL /*erase*/) {
    asked.push_back(window);
    return TRUE;
}

LRESULT WINAPI noteFont(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETFONT)
        fonts.push_back(lParam != FALSE);
    return systemSend(window, message, wParam, lParam);
}

HCURSOR pointer = nullptr;

HCURSOR WINAPI notePointer(HCURSOR shown) {
    pointer = shown;
    return nullptr;
}

bool isPainted(HWND window) {
    return GetUpdateRect(window, nullptr, FALSE) == FALSE;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/painting");

TEST_CASE("a window that is uncovered while many settings are written is painted before they are done") {
    contract::World world;
    contract::ToolForm form;
    form.load();
    form.show();
    const auto window = reinterpret_cast<HWND>(form.window());
    REQUIRE(contract::World::until([&] { return isPainted(window); }));
    PostMessageA(window, WM_NULL, 0, 0);
    InvalidateRect(window, nullptr, TRUE);
    REQUIRE_FALSE(isPainted(window));
    const std::string file = world.path("many.ini");
    const auto write = [&file] {
        return platform::WritePrivateProfileStringA("Section", "key", "value", file.c_str()) != 0;
    };
    const ULONGLONG begin = GetTickCount64();
    while (!isPainted(window) && GetTickCount64() - begin < 10'000)
        REQUIRE(write());
    CHECK(isPainted(window));
    // Nothing else was served.
    MSG message{};
    CHECK(PeekMessageA(&message, window, WM_NULL, WM_NULL, PM_REMOVE) != FALSE);
}

TEST_CASE("a form that is at work shows so by its pointer at once, also where it is moved, and no longer") {
    const contract::World world;
    contract::ToolForm form;
    form.load();
    form.show();
    const auto window = reinterpret_cast<HWND>(form.window());
    const contract::ImportHook hook("SetCursor", reinterpret_cast<void*>(&notePointer));
    form.setMousePointer(forms::MousePointer::hourglass);
    CHECK(pointer == LoadCursorA(nullptr, IDC_WAIT));
    pointer = nullptr;
    SendMessageA(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    CHECK(pointer == LoadCursorA(nullptr, IDC_WAIT));
    form.setMousePointer(forms::MousePointer::standard);
    CHECK(pointer == LoadCursorA(nullptr, IDC_ARROW));
}

TEST_CASE(
    "a picture box asks to be painted when its picture changes where it is seen, and not where hidden") {
    const contract::World world;
    contract::ToolForm form;
    forms::PictureBox box;
    box.place(form, {0, 0, 300, 300});
    form.load();
    form.show();
    const auto window = reinterpret_cast<HWND>(box.hWnd());
    const contract::ImportHook hook("InvalidateRect", reinterpret_cast<void*>(&noteWindow));
    REQUIRE(hook.original() != nullptr);
    for (const bool seen : {true, false}) {
        CAPTURE(seen);
        box.setVisible(seen);
        box.setAutoRedraw(true);
        asked.clear();
        box.refresh();
        CHECK(asked == (seen ? std::vector{window} : std::vector<HWND>()));
        asked.clear();
        box.setPicture({1, 1, {forms::opaque}});
        CHECK(asked == (seen ? std::vector{window} : std::vector<HWND>()));
    }
}

TEST_CASE("a new window gets its font without being asked to be painted for it") {
    const contract::World world;
    contract::ToolForm form;
    forms::PictureBox box;
    box.place(form, {0, 0, 300, 300});
    const contract::ImportHook hook("SendMessageA", &noteFont, systemSend);
    REQUIRE((systemSend != nullptr));
    fonts.clear();
    form.load();
    CHECK(fonts == std::vector{false});
}

TEST_CASE("another text is painted, and the one that a control has already is not") {
    const contract::World world;
    forms::Form form;
    form.setClientSize(6000, 3000);
    forms::Label label;
    label.place(form, {0, 0, 1500, 300});
    forms::Frame frame;
    frame.place(form, {0, 500, 3000, 900});
    forms::TabStrip tabs;
    tabs.place(form, {0, 1500, 3000, 900});
    tabs.setTabs(1);
    const auto assign = [&](const char* text) {
        label.setCaption(text);
        frame.setCaption(text);
        tabs.setTabCaption(0, text);
    };
    assign("one");
    form.show();
    for (forms::Control* control :
         {static_cast<forms::Control*>(&label), static_cast<forms::Control*>(&frame),
          static_cast<forms::Control*>(&tabs)}) {
        const auto window = reinterpret_cast<HWND>(control->hWnd());
        CAPTURE(static_cast<int>(control->kind()));
        REQUIRE(contract::World::until([window] { return isPainted(window); }));
        assign("one");
        CHECK(isPainted(window));
        assign("another");
        CHECK_FALSE(isPainted(window));
        assign("one");
    }
}

TEST_SUITE_END();
