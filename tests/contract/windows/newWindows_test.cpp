// A window is made as it is to be: what the system would be told once more behind its making costs the user
// time, window by window, whenever a dialog opens.
#include "contract/toolForm.h"
#include "contract/windows/importHook.h"
#include "contract/world.h"
#include "forms/button.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "setup/frmSetup.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

namespace {

/// What the program tells controls while this stands.
class Told {
  public:
    Told() { texts = places = styles = marks = paintings = 0; }

    static inline int texts = 0;
    static inline int places = 0; ///< with a size
    static inline int styles = 0;
    static inline int marks = 0;
    static inline int paintings = 0; ///< that they are to be painted

  private:
    static bool isControl(HWND window) { return (GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0; }

    static BOOL WINAPI setText(HWND window, const wchar_t* text) {
        texts += isControl(window) ? 1 : 0;
        return setText_(window, text);
    }
    static BOOL WINAPI place(HWND window, HWND after, int x, int y, int width, int height, UINT flags) {
        places += isControl(window) && (flags & SWP_NOSIZE) == 0 ? 1 : 0;
        return place_(window, after, x, y, width, height, flags);
    }
    static LONG WINAPI setLong(HWND window, int index, LONG value) {
        styles += isControl(window) && index == GWL_STYLE ? 1 : 0;
        return setLong_(window, index, value);
    }
    static LRESULT WINAPI send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        marks += message == BM_SETCHECK ? 1 : 0;
        return send_(window, message, wParam, lParam);
    }
    static BOOL WINAPI invalidate(HWND window, const RECT* area, BOOL erase) {
        paintings += isControl(window) ? 1 : 0;
        return invalidate_(window, area, erase);
    }

    static inline decltype(&SetWindowTextW) setText_ = nullptr;
    static inline decltype(&SetWindowPos) place_ = nullptr;
    static inline decltype(&SetWindowLongA) setLong_ = nullptr;
    static inline decltype(&SendMessageA) send_ = nullptr;
    static inline decltype(&InvalidateRect) invalidate_ = nullptr;
    contract::ImportHook text_{"SetWindowTextW", &setText, setText_};
    contract::ImportHook position_{"SetWindowPos", &place, place_};
    contract::ImportHook style_{"SetWindowLongA", &setLong, setLong_};
    contract::ImportHook message_{"SendMessageA", &send, send_};
    contract::ImportHook painting_{"InvalidateRect", &invalidate, invalidate_};
};

RECT placeOf(forms::Control& control) {
    RECT place{};
    GetWindowRect(win32::native(control.hWnd()), &place);
    return place;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/newWindows");

TEST_CASE("a label that is as large as its text is made so") {
    const contract::World world;
    contract::ToolForm form;
    forms::Label label;
    label.place(form, {0, 0, 1500, 300});
    label.setCaption("text");
    SUBCASE("by itself") {}
    SUBCASE("as it wants to be") {
        label.autoSize = true;
    }
    {
        const Told told;
        form.load();
        CHECK(Told::places == 0);
    }
    const RECT made = placeOf(label);
    CHECK(made.right - made.left < form.resolution().toPixels(1500));
    // Told of its text later it is where it is.
    label.setCaption("another text");
    CHECK(placeOf(label).right > made.right);
    label.setCaption("text");
    const RECT told = placeOf(label);
    CHECK(EqualRect(&told, &made) != FALSE);
    {
        const Told later;
        label.setCaption("another text");
        CHECK(Told::texts == 1);
        CHECK(Told::places == 1);
    }
}

TEST_CASE("a new control is given no style and no mark that it has") {
    const contract::World world;
    contract::ToolForm form;
    forms::Frame frame;
    forms::OptionButton option;
    forms::CheckBox box;
    forms::CommandButton button;
    frame.place(form, {0, 0, 900, 300});
    option.place(frame, {0, 0, 900, 300});
    box.place(form, {0, 300, 900, 300});
    button.place(form, {0, 600, 900, 300});
    button.setPicture({1, 1, {forms::opaque}});
    const Told told;
    form.load();
    CHECK(Told::styles == 1); // the button's, for its picture
    CHECK(Told::marks == 0);
    CHECK(Told::paintings == 0);
    // What there is to tell is told.
    option.setValue(true);
    box.setValue(1);
    CHECK(Told::marks == 2);
    button.setPicture({});
    CHECK(Told::styles == 2);
    CHECK(Told::paintings > 0);
}

TEST_CASE("the setup's windows come with their texts") {
    const contract::World world;
    setup::frmSetup form;
    const Told told;
    form.loadResources();
    CHECK(Told::texts == 0);
    form.btnOk.setCaption("another text");
    CHECK(Told::texts == 1);
}

TEST_SUITE_END();
