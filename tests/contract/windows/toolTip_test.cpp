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

TEST_SUITE_END();
