// What a window of ours is afterwards that the system has refused to put into a host.
#include "contract/world.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "platform/user32.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <memory>
#include <vector>

namespace {

using contract::World;

class ToolForm : public forms::Form {
  public:
    explicit ToolForm(forms::BorderStyle border = forms::BorderStyle::sizableToolWindow) {
        borderStyle = border;
        showInTaskbar = false;
        activates = false;
        setClientSize(1800, 300);
        frame.place(*this, {0, 0, 1500, 270});
        show();
    }
    forms::Frame frame;
};

HWND native(forms::Control& control) {
    return reinterpret_cast<HWND>(control.hWnd());
}

struct Styles {
    LONG style;
    LONG extended;
    bool operator==(const Styles&) const = default;
};

/// But for whether it is shown.
Styles stylesOf(HWND window) {
    return {GetWindowLongA(window, GWL_STYLE) & ~WS_VISIBLE, GetWindowLongA(window, GWL_EXSTYLE)};
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/refusal");

TEST_CASE("the styles of a form and of a frame are as they were before") {
    World world;
    const platform::HWND dead = world.openWindow("host");
    world.closeWindow(dead);
    REQUIRE(World::until([&] { return !platform::IsWindow(dead); }));
    for (const forms::BorderStyle border :
         {forms::BorderStyle::sizableToolWindow, forms::BorderStyle::none}) {
        ToolForm form(border);
        // A window that stands in the refused one, so that it is the system that refuses.
        forms::Frame inner;
        inner.place(form.frame, {0, 0, 600, 150});
        struct Try {
            platform::HWND window;
            platform::HWND host;
        };
        for (const Try refused : {Try{form.hWnd(), dead}, Try{form.hWnd(), form.frame.hWnd()},
                                  Try{form.frame.hWnd(), dead}, Try{form.frame.hWnd(), inner.hWnd()}}) {
            const HWND window = reinterpret_cast<HWND>(refused.window);
            const Styles before = stylesOf(window);
            const HWND stoodIn = GetAncestor(window, GA_PARENT);
            platform::SetParent(refused.window, refused.host);
            CHECK(stylesOf(window) == before);
            CHECK(GetAncestor(window, GA_PARENT) == stoodIn);
        }
    }
}

TEST_CASE("of many forms and frames that one host refuses the newest keeps its window") {
    World world;
    const platform::HWND dead = world.openWindow("host");
    world.closeWindow(dead);
    REQUIRE(World::until([&] { return !platform::IsWindow(dead); }));
    std::vector<std::unique_ptr<ToolForm>> toolbars;
    std::vector<std::unique_ptr<ToolForm>> calculators;
    for (int tick = 0; tick < 3; ++tick) {
        toolbars.push_back(std::make_unique<ToolForm>());
        platform::SetParent(toolbars.back()->hWnd(), dead);
        calculators.push_back(std::make_unique<ToolForm>());
        platform::SetParent(calculators.back()->frame.hWnd(), dead);
    }
    for (auto* all : {&toolbars, &calculators}) {
        CHECK(native(*all->at(0)) == nullptr);
        CHECK(native(all->at(1)->frame) == nullptr);
        CHECK(IsWindow(native(*all->at(2))) != FALSE);
        CHECK(IsWindow(native(all->at(2)->frame)) != FALSE);
    }
}

TEST_SUITE_END();
