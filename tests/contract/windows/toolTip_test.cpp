// When the system hears of a tip, and what it knows of it then. That it shows is for the scenes.
#include "contract/toolForm.h"
#include "contract/windows/nativeBar.h"
#include "contract/windows/tips.h"
#include "contract/world.h"
#include "forms/label.h"
#include "platform/user32.h"

#include <doctest/doctest.h>

namespace {

using contract::pointAt;
using contract::Tip;
using contract::World;

struct Tipped : contract::ToolForm {
    Tipped() {
        label.place(*this, {0, 0, 300, 300});
        label.setToolTipText("a tip");
    }
    forms::Label label;
};

} // namespace

TEST_SUITE_BEGIN("contract/windows/toolTip");

TEST_CASE("a tip is made when the mouse comes, and not before") {
    const World world;
    Tipped form;
    form.load();
    form.show();
    CHECK(Tip(form.label).window() == nullptr);
    form.label.setToolTipText("another tip");
    CHECK(Tip(form.label).window() == nullptr);
    pointAt(form.label);
    CHECK(Tip(form.label).text() == "another tip");
}

TEST_CASE("a tip that is there follows its text") {
    const World world;
    Tipped form;
    form.load();
    form.show();
    pointAt(form.label);
    CHECK(Tip(form.label).text() == "a tip");
    form.label.setToolTipText("another tip");
    CHECK(Tip(form.label).text() == "another tip");
    form.label.setToolTipText("");
    CHECK(Tip(form.label).window() == nullptr);
    pointAt(form.label);
    CHECK(Tip(form.label).window() == nullptr);
    form.label.setToolTipText("a tip");
    pointAt(form.label);
    CHECK(Tip(form.label).text() == "a tip");
}

TEST_CASE("a toolbar's tips show each text whole, and its host does not own them") {
    World world;
    contract::BarForm form;
    form.tip = "Drill & mill";
    form.fill("bb");
    form.load();
    form.show();
    platform::SetParent(form.hWnd(), world.openEditor());
    pointAt(form.bar);
    const auto tips = reinterpret_cast<HWND>(contract::ask(form.bar, TB_GETTOOLTIPS));
    REQUIRE(tips != nullptr);
    constexpr LONG whole = TTS_NOPREFIX | TTS_ALWAYSTIP;
    CHECK((GetWindowLongA(tips, GWL_STYLE) & whole) == whole);
    const HWND owner = GetWindow(tips, GW_OWNER);
    CHECK((owner == nullptr || GetWindowThreadProcessId(owner, nullptr) == GetCurrentThreadId()));
}

TEST_CASE("a toolbar that is filled again has one tip for each button, where the button is") {
    const World world;
    contract::BarForm form;
    form.fill("bbsbbbb");
    form.load();
    form.show();
    const auto tips = reinterpret_cast<HWND>(contract::ask(form.bar, TB_GETTOOLTIPS));
    REQUIRE(tips != nullptr);
    const HWND bar = win32::native(form.bar.hWnd());
    for (const char* kinds : {"bbsbbbb", "bbb", "bbbbsbsbb", "b"}) {
        CAPTURE(kinds);
        form.fill(kinds);
        const auto buttons = static_cast<int>(contract::ask(form.bar, TB_BUTTONCOUNT));
        for (int button = 0; button < buttons; ++button) {
            if (kinds[button] == 's')
                continue;
            TBBUTTON made{};
            contract::ask(form.bar, TB_GETBUTTON, static_cast<WPARAM>(button),
                          reinterpret_cast<LPARAM>(&made));
            RECT place{};
            contract::ask(form.bar, TB_GETITEMRECT, static_cast<WPARAM>(button),
                          reinterpret_cast<LPARAM>(&place));
            TTTOOLINFOA tool{};
            tool.cbSize = TTTOOLINFOA_V2_SIZE;
            tool.hwnd = bar;
            tool.uId = static_cast<UINT_PTR>(made.idCommand);
            REQUIRE(SendMessageA(tips, TTM_GETTOOLINFOA, 0, reinterpret_cast<LPARAM>(&tool)) != 0);
            CHECK(EqualRect(&tool.rect, &place) != FALSE);
        }
        // A separator may have one too, which shows nothing.
        CHECK(SendMessageA(tips, TTM_GETTOOLCOUNT, 0, 0) <= buttons);
    }
}

TEST_CASE("a toolbar's tips go with it") {
    const World world;
    HWND tips = nullptr;
    {
        contract::BarForm form;
        form.fill("bb");
        form.load();
        form.show();
        tips = reinterpret_cast<HWND>(contract::ask(form.bar, TB_GETTOOLTIPS));
        REQUIRE(IsWindow(tips) != FALSE);
    }
    CHECK(IsWindow(tips) == FALSE);
}

TEST_SUITE_END();
