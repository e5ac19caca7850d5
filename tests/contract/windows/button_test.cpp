// Command buttons as windows.
#include "contract/world.h"
#include "forms/button.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/textBox.h"
#include "win32/common/native.h"
#include "win32/forms/dialogKeys.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <string>

namespace {

using contract::World;

/// A field, a check box and three buttons, one of them on a frame; the first is the default one.
class Dialog : public forms::Form {
  public:
    Dialog() {
        setClientSize(6000, 3000);
        field.place(*this, {60, 60, 3000, 300});
        mark.place(*this, {60, 500, 3000, 300});
        ok.isDefault = true;
        ok.place(*this, {60, 1000, 1335, 315});
        cancel.place(*this, {1500, 1000, 1335, 315});
        frame.place(*this, {60, 1500, 3000, 900});
        inner.place(frame, {60, 300, 1335, 315});
        ok.onClick = [this] { pressed += "ok "; };
        cancel.onClick = [this] { pressed += "cancel "; };
        inner.onClick = [this] { pressed += "inner "; };
        show();
    }

    /// The buttons that look as if Enter pressed them, from left to right.
    std::string marked() {
        std::string names;
        const auto add = [&names](forms::CommandButton& button, const char* name) {
            const LONG style = GetWindowLongA(win32::native(button.hWnd()), GWL_STYLE);
            if ((style & BS_TYPEMASK) == BS_DEFPUSHBUTTON)
                names += name;
        };
        add(ok, "ok ");
        add(cancel, "cancel ");
        add(inner, "inner ");
        return names;
    }

    /// What is marked, and then pressed by Enter, when a control has been given the focus.
    std::string withFocusOn(forms::Control& control) {
        SetFocus(win32::native(control.hWnd()));
        const std::string seen = marked();
        pressed.clear();
        PostMessageA(GetFocus(), WM_KEYDOWN, VK_RETURN, 1);
        World::until([this] { return !pressed.empty(); });
        CHECK(pressed == seen);
        return seen;
    }

    forms::TextBox field;
    forms::CheckBox mark;
    forms::CommandButton ok;
    forms::CommandButton cancel;
    forms::Frame frame;
    forms::CommandButton inner;
    std::string pressed;
};

} // namespace

TEST_SUITE_BEGIN("contract/windows/button");

TEST_CASE("a button's caption wraps where two lines have room, and stays whole in one where they "
          "have not") {
    const World world;
    forms::Form form;
    forms::CommandButton low;
    forms::CommandButton high;
    low.place(form, {0, 0, 1335, 435});
    high.place(form, {0, 600, 1335, 450});
    form.show();
    const auto wraps = [](forms::CommandButton& button) {
        return (GetWindowLongA(win32::native(button.hWnd()), GWL_STYLE) & BS_MULTILINE) != 0;
    };
    CHECK_FALSE(wraps(low));
    CHECK(wraps(high));
}

TEST_CASE("the button that has the focus is marked and pressed by Enter, without one the default "
          "button") {
    const World world;
    Dialog dialog;
    CHECK(dialog.withFocusOn(dialog.field) == "ok ");
    CHECK(dialog.withFocusOn(dialog.cancel) == "cancel ");
    CHECK(dialog.withFocusOn(dialog.inner) == "inner ");
    CHECK(dialog.withFocusOn(dialog.ok) == "ok ");
    CHECK(dialog.withFocusOn(dialog.inner) == "inner ");
    CHECK(dialog.withFocusOn(dialog.mark) == "ok ");
    CHECK(dialog.withFocusOn(dialog.cancel) == "cancel ");
    CHECK(dialog.withFocusOn(dialog.field) == "ok ");
}

TEST_CASE("the Tab key takes the mark along") {
    const World world;
    Dialog dialog;
    SetFocus(win32::native(dialog.mark.hWnd()));
    std::string seen;
    for (int step = 0; step < 5; ++step) {
        win32::moveFocus(GetFocus(), false);
        seen += dialog.marked() + "/ ";
    }
    CHECK(seen == "ok / cancel / inner / ok / ok / ");
}

TEST_CASE("a dialog that is left for another one keeps its mark") {
    const World world;
    Dialog dialog;
    SetFocus(win32::native(dialog.cancel.hWnd()));
    {
        Dialog other;
        SetFocus(win32::native(other.field.hWnd()));
        CHECK(other.marked() == "ok ");
        CHECK(dialog.marked() == "cancel ");
    }
    SetFocus(win32::native(dialog.field.hWnd()));
    CHECK(dialog.marked() == "ok ");
}

TEST_CASE("where no button is the default one, the mark goes with the focus") {
    const World world;
    Dialog dialog;
    dialog.ok.isDefault = false;
    SetFocus(win32::native(dialog.ok.hWnd()));
    CHECK(dialog.marked() == "ok ");
    SetFocus(win32::native(dialog.field.hWnd()));
    CHECK(dialog.marked().empty());
}

TEST_SUITE_END();
