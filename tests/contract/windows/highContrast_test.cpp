// Text that the user can read whatever colours the system and its theme have.
#include "contract/windows/importHook.h"
#include "contract/world.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/tabStrip.h"
#include "forms/textBox.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

namespace {

using contract::World;

constexpr COLORREF systemText = RGB(250, 240, 230);
constexpr COLORREF untouched = RGB(1, 2, 3);

bool highContrast = false;
decltype(&::SystemParametersInfoA) systemParameters = nullptr;
decltype(&::GetSysColor) systemColour = nullptr;

BOOL WINAPI contrastAsSet(UINT action, UINT size, void* data, UINT flags) {
    const BOOL known = systemParameters(action, size, data, flags);
    if (action != SPI_GETHIGHCONTRAST)
        return known;
    static_cast<HIGHCONTRASTA*>(data)->dwFlags = highContrast ? HCF_HIGHCONTRASTON : 0;
    return TRUE;
}

DWORD WINAPI lightText(int index) {
    return index == COLOR_WINDOWTEXT ? systemText : systemColour(index);
}

/// A page of a dialog, as the theme paints it, and a frame with a colour of its own.
class Dialog : public forms::Form {
  public:
    Dialog() {
        setClientSize(6000, 4500);
        tabs.place(*this, {0, 0, 6000, 3000});
        tabs.setTabs(1);
        tabs.placeOnTab(0, page, {100, 500, 5000, 2000});
        plain.place(page, {100, 300, 1000, 300});
        plain.setCaption("plain");
        red.place(page, {100, 700, 1000, 300});
        red.setCaption("red");
        red.setForeColour(0xFF0000);
        onPaper.place(page, {100, 1100, 1000, 300});
        onPaper.setForeColour(0xFF0000);
        yellow.setBackColour(0xFFFF00);
        yellow.place(*this, {0, 3000, 6000, 1500});
        onYellow.place(yellow, {100, 300, 1000, 300});
        onYellow.setCaption("on yellow");
        redOnYellow.place(yellow, {100, 700, 1000, 300});
        redOnYellow.setCaption("red on yellow");
        redOnYellow.setForeColour(0xFF0000);
        show();
    }

    forms::TabStrip tabs;
    forms::Frame page;
    forms::Frame yellow;
    forms::Label plain;
    forms::Label red;
    forms::TextBox onPaper;
    forms::Label onYellow;
    forms::Label redOnYellow;
};

/// The colour that a control's text gets; `untouched` where nobody gives it one.
COLORREF textOf(forms::Control& control, UINT message = WM_CTLCOLORSTATIC) {
    const HDC dc = CreateCompatibleDC(nullptr);
    SetTextColor(dc, untouched);
    const HWND window = win32::native(control.hWnd());
    SendMessageA(GetParent(window), message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(window));
    const COLORREF colour = GetTextColor(dc);
    DeleteDC(dc);
    return colour;
}

/// Where the program leaves the answer to the system, that one gives its real colour.
bool isSystems(COLORREF colour) {
    return colour == systemText || colour == systemColour(COLOR_WINDOWTEXT);
}

struct Colours {
    contract::ImportHook parameters{"SystemParametersInfoA", &contrastAsSet, systemParameters};
    contract::ImportHook colour{"GetSysColor", &lightText, systemColour};
};

} // namespace

TEST_SUITE_BEGIN("contract/windows/highContrast");

TEST_CASE("on the theme's page text has the system's colour, on a colour of our own it is black") {
    const World world;
    const Colours colours;
    Dialog dialog;
    for (const bool high : {false, true}) {
        highContrast = high;
        CHECK(isSystems(textOf(dialog.plain)));
        CHECK(textOf(dialog.onYellow) == RGB(0, 0, 0));
        CHECK(textOf(dialog.redOnYellow) == RGB(255, 0, 0));
    }
}

TEST_CASE("a colour of a text's own gives way to the system's with high contrast, unless it stands on one") {
    const World world;
    const Colours colours;
    Dialog dialog;
    highContrast = false;
    CHECK(textOf(dialog.red) == RGB(255, 0, 0));
    CHECK(textOf(dialog.onPaper, WM_CTLCOLOREDIT) == RGB(255, 0, 0));
    highContrast = true;
    CHECK(isSystems(textOf(dialog.red)));
    CHECK(isSystems(textOf(dialog.onPaper, WM_CTLCOLOREDIT)));
    CHECK(textOf(dialog.redOnYellow) == RGB(255, 0, 0));
    highContrast = false;
}

TEST_SUITE_END();
