// Drop-down lists as windows: what is shown is what the control holds, however the list has been opened,
// moved in and closed.
#include "contract/world.h"
#include "forms/button.h"
#include "forms/form.h"
#include "forms/listBox.h"
#include "forms/textBox.h"
#include "platform/messages.h"
#include "win32/common/native.h"
#include "win32/forms/dialogKeys.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using contract::World;
using Rows = std::vector<std::string>;

constexpr int first = 2; ///< selected at the start
constexpr const char* letterMove = "a letter";

/// A list between a field and the default button.
class Dialog : public forms::Form {
  public:
    Dialog() {
        setClientSize(6000, 3000);
        field.place(*this, {60, 60, 3000, 300});
        list.place(*this, {60, 500, 1500, 315});
        for (const char* row : {"alpha", "beta", "gamma", "delta", "epsilon", "zeta"})
            list.addItem(row);
        list.onClick = [this] { clicks.push_back(list.text()); };
        ok.setCaption("&Ok");
        ok.isDefault = true;
        ok.place(*this, {60, 2000, 1335, 315});
        ok.onClick = [this] { stored = list.text(); };
        show();
        begin();
    }
    /// The first row again, with the keyboard on the list and nothing told.
    void begin() {
        list.setListIndex(first);
        clicks.clear();
        SetFocus(window());
    }

    HWND window() { return win32::native(list.hWnd()); }
    HWND openList() {
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        GetComboBoxInfo(window(), &info);
        return info.hwndList;
    }
    bool open() { return SendMessageA(window(), CB_GETDROPPEDSTATE, 0, 0) != FALSE; }
    int row() { return static_cast<int>(SendMessageA(window(), CB_GETCURSEL, 0, 0)); }
    std::string text() {
        char shown[32] = {};
        SendMessageA(window(), WM_GETTEXT, sizeof shown, reinterpret_cast<LPARAM>(shown));
        return shown;
    }

    // What the user does. Each is over when it has been handled.
    void post(HWND to, UINT message, WPARAM wParam, LPARAM lParam) {
        PostMessageA(to, message, wParam, lParam);
        platform::doEvents();
    }
    void key(WPARAM key) { post(GetFocus(), WM_KEYDOWN, key, 1); }
    void altKey(WPARAM key) { post(GetFocus(), WM_SYSKEYDOWN, key, 0x20000001); }
    void letter(char typed) { post(GetFocus(), WM_CHAR, static_cast<WPARAM>(typed), 1); }
    void wheel() { post(GetFocus(), WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0); }
    void clickField() {
        const LPARAM middle = MAKELPARAM(30, 10);
        post(window(), WM_LBUTTONDOWN, MK_LBUTTON, middle);
        post(window(), WM_LBUTTONUP, 0, middle);
    }
    /// In the open list's client area.
    LPARAM middleOf(int number) {
        RECT rect{};
        SendMessageA(openList(), LB_GETITEMRECT, static_cast<WPARAM>(number),
                     reinterpret_cast<LPARAM>(&rect));
        return MAKELPARAM(rect.left + 10, (rect.top + rect.bottom) / 2);
    }
    void pointAt(int number) { post(openList(), WM_MOUSEMOVE, 0, middleOf(number)); }
    void choose(int number) {
        const LPARAM place = middleOf(number);
        post(openList(), WM_LBUTTONDOWN, MK_LBUTTON, place);
        post(openList(), WM_LBUTTONUP, 0, place);
    }
    /// The open list has the mouse, so that a press beside it goes there too.
    void pressElsewhere() {
        BYTE keys[256];
        GetKeyboardState(keys);
        keys[VK_LBUTTON] = 0x80;
        SetKeyboardState(keys);
        post(openList(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(-30, -100));
        keys[VK_LBUTTON] = 0;
        SetKeyboardState(keys);
        platform::doEvents();
    }
    void tab() { win32::moveFocus(GetFocus(), false); }
    static void otherProgram() { SetFocus(nullptr); }

    forms::TextBox field;
    forms::ComboBox list;
    forms::CommandButton ok;
    Rows clicks;
    std::string stored;
};

struct Way {
    std::string name;
    std::function<void(Dialog&)> go;
};

const std::vector<Way>& openings() {
    static const std::vector<Way> ways{
        {"F4", [](Dialog& dialog) { dialog.key(VK_F4); }},
        {"Alt+Down", [](Dialog& dialog) { dialog.altKey(VK_DOWN); }},
        {"a click", [](Dialog& dialog) { dialog.clickField(); }},
    };
    return ways;
}

const std::vector<Way>& moves() {
    static const std::vector<Way> ways{
        {"no move", [](Dialog& /*dialog*/) {}},
        {"Down", [](Dialog& dialog) { dialog.key(VK_DOWN); }},
        {"End", [](Dialog& dialog) { dialog.key(VK_END); }},
        {letterMove, [](Dialog& dialog) { dialog.letter('b'); }},
        {"the wheel", [](Dialog& dialog) { dialog.wheel(); }},
        {"the mouse", [](Dialog& dialog) { dialog.pointAt(0); }},
        {"Down, the mouse", [](Dialog& dialog) { dialog.key(VK_DOWN), dialog.pointAt(0); }},
        {"the mouse, Down", [](Dialog& dialog) { dialog.pointAt(0), dialog.key(VK_DOWN); }},
        {"there and back", [](Dialog& dialog) { dialog.key(VK_DOWN), dialog.key(VK_UP); }},
    };
    return ways;
}

const std::vector<Way>& takers() {
    static const std::vector<Way> ways{
        {"Enter", [](Dialog& dialog) { dialog.key(VK_RETURN); }},
        {"F4", [](Dialog& dialog) { dialog.key(VK_F4); }},
        {"Alt+Up", [](Dialog& dialog) { dialog.altKey(VK_UP); }},
        {"Tab", [](Dialog& dialog) { dialog.tab(); }},
        {"a click on a row", [](Dialog& dialog) { dialog.choose(4); }},
    };
    return ways;
}

const std::vector<Way>& leavers() {
    static const std::vector<Way> ways{
        {"Esc", [](Dialog& dialog) { dialog.key(VK_ESCAPE); }},
        {"a press elsewhere", [](Dialog& dialog) { dialog.pressElsewhere(); }},
        {"another program", [](Dialog& /*dialog*/) { Dialog::otherProgram(); }},
    };
    return ways;
}

/// Each way of opening with each way of moving and each of closing.
void closeInAllWays(const std::vector<Way>& closings, const std::function<void(Dialog&)>& check) {
    const World world;
    for (const Way& opening : openings()) {
        Dialog dialog;
        for (const Way& move : moves())
            for (const Way& closing : closings) {
                CAPTURE(opening.name);
                CAPTURE(move.name);
                CAPTURE(closing.name);
                dialog.begin();
                opening.go(dialog);
                REQUIRE(dialog.open());
                move.go(dialog);
                if (move.name == letterMove && contract::worldKind() == contract::WorldKind::wine) {
                    // Windows only moves the highlight, as with the other keys.
                    CHECK_FALSE(dialog.open());
                    CHECK(dialog.clicks == Rows{dialog.text()});
                    CHECK(dialog.row() == dialog.list.listIndex());
                    continue;
                }
                CHECK(dialog.clicks.empty());
                CHECK(dialog.list.listIndex() == first);
                closing.go(dialog);
                platform::doEvents();
                CHECK_FALSE(dialog.open());
                CHECK(dialog.row() == dialog.list.listIndex());
                CHECK(dialog.text() == dialog.list.text());
                check(dialog);
            }
    }
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/dropDown");

TEST_CASE("an open list that takes a row raises one click when it closes, if it is another row") {
    closeInAllWays(takers(), [](Dialog& dialog) {
        CHECK(dialog.clicks == (dialog.list.listIndex() == first ? Rows{} : Rows{dialog.list.text()}));
    });
}

TEST_CASE("an open list that is left by Esc, by a press or a program elsewhere keeps its row") {
    closeInAllWays(leavers(), [](Dialog& dialog) {
        CHECK(dialog.clicks.empty());
        CHECK(dialog.list.listIndex() == first);
    });
}

TEST_CASE("keys move in an open list, and Enter takes the row that they have come to") {
    const World world;
    for (const Way& opening : openings()) {
        Dialog dialog;
        opening.go(dialog);
        dialog.key(VK_DOWN);
        dialog.key(VK_DOWN);
        dialog.key(VK_DOWN);
        dialog.key(VK_UP);
        CHECK(dialog.row() == first + 2);
        dialog.key(VK_RETURN);
        CHECK(dialog.list.listIndex() == first + 2);
        CHECK(dialog.clicks == Rows{"epsilon"});
        CHECK(dialog.stored.empty());
    }
}

TEST_CASE("the row that is clicked on is taken") {
    const World world;
    for (const Way& opening : openings()) {
        Dialog dialog;
        opening.go(dialog);
        dialog.pointAt(0);
        dialog.choose(5);
        CHECK(dialog.list.listIndex() == 5);
        CHECK(dialog.clicks == Rows{"zeta"});
    }
}

TEST_CASE(
    "contract: a closed list changes with each key, letter and turn of the wheel, with a click for each") {
    const World world;
    Dialog dialog;
    dialog.key(VK_DOWN);
    CHECK(dialog.clicks == Rows{"delta"});
    dialog.key(VK_UP);
    CHECK(dialog.clicks == Rows{"delta", "gamma"});
    dialog.letter('b');
    CHECK(dialog.clicks == Rows{"delta", "gamma", "beta"});
    dialog.wheel();
    CHECK(dialog.clicks == Rows{"delta", "gamma", "beta", "gamma"});
    dialog.key(VK_HOME);
    CHECK(dialog.clicks == Rows{"delta", "gamma", "beta", "gamma", "alpha"});
    dialog.key(VK_UP); // there is none
    CHECK(dialog.clicks.size() == 5);
    CHECK(dialog.row() == dialog.list.listIndex());
}

TEST_CASE("a button that is pressed by its mnemonic finds the row that the open list shows") {
    const World world;
    Dialog dialog;
    dialog.key(VK_F4);
    dialog.key(VK_DOWN);
    dialog.post(GetFocus(), WM_SYSCHAR, 'o', 0x20000001);
    CHECK(World::until([&] { return !dialog.stored.empty(); }));
    CHECK_FALSE(dialog.open());
    CHECK(dialog.stored == dialog.text());
    CHECK(dialog.stored == "delta");
    CHECK(dialog.clicks == Rows{"delta"});
}

TEST_CASE("a click may select another row, and may unload the form") {
    const World world;
    {
        Dialog dialog;
        dialog.list.onClick = [&] { dialog.list.setListIndex(0); };
        dialog.key(VK_F4);
        dialog.key(VK_DOWN);
        dialog.key(VK_RETURN);
        CHECK(dialog.list.listIndex() == 0);
        CHECK(dialog.row() == 0);
    }
    Dialog dialog;
    dialog.list.onClick = [&] { dialog.unload(); };
    dialog.key(VK_DOWN);
    CHECK_FALSE(dialog.loaded());
    dialog.show();
    SetFocus(dialog.window());
    dialog.key(VK_F4);
    dialog.key(VK_DOWN);
    dialog.key(VK_RETURN);
    CHECK_FALSE(dialog.loaded());
    CHECK(dialog.list.listIndex() == first + 2);
}

TEST_CASE("a list that is disabled while it is open keeps its row") {
    const World world;
    Dialog dialog;
    dialog.key(VK_F4);
    dialog.key(VK_DOWN);
    dialog.list.setEnabled(false);
    platform::doEvents();
    CHECK_FALSE(dialog.open());
    CHECK(dialog.list.listIndex() == first);
    CHECK(dialog.row() == first);
    CHECK(dialog.clicks.empty());
}

TEST_SUITE_END();
