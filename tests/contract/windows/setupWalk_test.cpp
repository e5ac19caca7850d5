// Real keys and clicks on the setup, by chance: after each step every control's window shows what its model
// holds. Only what opens another window is left out.
#include "contract/world.h"
#include "platform/messages.h"
#include "setup/frmSetup.h"
#include "store/state.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <commctrl.h>

#include <random>
#include <string>
#include <vector>

namespace {

using contract::World;
using forms::ControlKind;

LRESULT ask(HWND window, UINT message) {
    return SendMessageA(window, message, 0, 0);
}

/// A window's text; an ampersand and what stands for it alike.
std::string textOf(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

/// All controls of a container, at any depth.
void collect(const forms::Container& container, std::vector<forms::Control*>& found) {
    for (forms::Control* control : container.controls()) {
        found.push_back(control);
        if (const auto* inner = dynamic_cast<const forms::Container*>(control))
            collect(*inner, found);
    }
}

/// What a window shows and what its control holds, as texts that are to be the same.
struct State {
    std::string window;
    std::string model;
};

State stateOf(forms::Control& control) {
    const HWND window = win32::native(control.hWnd());
    const auto number = [](auto value) { return std::to_string(static_cast<int>(value)); };
    switch (control.kind()) {
    case ControlKind::textBox: {
        DWORD begin = 0;
        DWORD end = 0;
        SendMessageA(window, EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
        const auto& box = static_cast<forms::TextBox&>(control);
        return {textOf(window) + " " + number(begin) + " " + number(end - begin),
                box.text() + " " + number(box.selStart()) + " " + number(box.selLength())};
    }
    case ControlKind::checkBox:
        return {number(ask(window, BM_GETCHECK)),
                number(static_cast<forms::CheckBox&>(control).value() != 0 ? 1 : 0)};
    case ControlKind::optionButton:
        return {number(ask(window, BM_GETCHECK)),
                number(static_cast<forms::OptionButton&>(control).value() ? 1 : 0)};
    case ControlKind::listBox: {
        const auto& list = static_cast<forms::ListBox&>(control);
        return {number(ask(window, LB_GETCURSEL)) + " of " + number(ask(window, LB_GETCOUNT)),
                number(list.listIndex()) + " of " + number(list.listCount())};
    }
    case ControlKind::comboBox: {
        // What happens in an open list does not count until it has closed.
        const auto& list = static_cast<forms::ComboBox&>(control);
        if (ask(window, CB_GETDROPPEDSTATE) != FALSE)
            return {};
        return {textOf(window) + " " + number(ask(window, CB_GETCURSEL)),
                list.text() + " " + number(list.listIndex())};
    }
    case ControlKind::tabStrip:
        return {number(ask(window, TCM_GETCURSEL)), number(static_cast<forms::TabStrip&>(control).tab())};
    case ControlKind::commandButton:
        return {textOf(window), static_cast<forms::CommandButton&>(control).caption()};
    default:
        return {};
    }
}

State stylesOf(forms::Control& control) {
    const LONG style = GetWindowLongA(win32::native(control.hWnd()), GWL_STYLE);
    const auto words = [](bool visible, bool enabled) {
        return std::string(visible ? "visible" : "hidden") + (enabled ? " enabled" : " disabled");
    };
    return {words((style & WS_VISIBLE) != 0, (style & WS_DISABLED) == 0),
            words(control.visible(), control.enabled())};
}

/// The user, at the setup.
class Walk {
  public:
    Walk(forms::Form& form, unsigned seed) : form_(form), random_(seed) { collect(form, controls_); }

    /// One step, and what it was.
    std::string step() {
        constexpr unsigned clicks = 3; // of ten steps
        return below(10) < clicks ? click() : press();
    }

    const std::vector<forms::Control*>& controls() const { return controls_; }
    HWND window() const { return win32::native(form_.hWnd()); }

  private:
    unsigned below(unsigned limit) { return static_cast<unsigned>(random_()) % limit; }

    static void send(std::vector<INPUT>& inputs) {
        SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
        // What has been put in is there at once; what is posted in answer comes behind it.
        for (int look = 0; look < 3; ++look)
            platform::doEvents();
    }

    static void addKey(std::vector<INPUT>& inputs, WORD key, bool up) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
        input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0U;
        inputs.push_back(input);
    }

    static void type(WORD key, WORD modifier = 0) {
        std::vector<INPUT> inputs;
        if (modifier != 0)
            addKey(inputs, modifier, false);
        addKey(inputs, key, false);
        addKey(inputs, key, true);
        if (modifier != 0)
            addKey(inputs, modifier, true);
        send(inputs);
    }

    forms::Control* focused() const {
        for (forms::Control* control : controls_)
            if (win32::native(control->hWnd()) == GetFocus())
                return control;
        return nullptr;
    }

    std::string press() {
        forms::Control* const control = focused();
        const ControlKind kind = control == nullptr ? ControlKind::form : control->kind();
        const bool open =
            kind == ControlKind::comboBox && ask(win32::native(control->hWnd()), CB_GETDROPPEDSTATE) != FALSE;
        struct Key {
            WORD key;
            WORD modifier;
        };
        std::vector<Key> keys{{VK_TAB, 0}, {VK_TAB, VK_SHIFT}, {VK_DOWN, 0}, {VK_UP, 0}};
        if (kind != ControlKind::textBox)
            keys.insert(keys.end(), {{VK_END, 0}, {VK_HOME, 0}, {VK_RIGHT, 0}, {VK_LEFT, 0}});
        if (kind == ControlKind::textBox)
            keys.insert(keys.end(),
                        {{'A', 0}, {'B', VK_SHIFT}, {VK_BACK, 0}, {VK_LEFT, VK_SHIFT}, {'A', VK_CONTROL}});
        if (kind == ControlKind::comboBox)
            keys.insert(keys.end(), {{VK_F4, 0}, {VK_DOWN, VK_MENU}, {VK_UP, VK_MENU}, {'M', 0}, {'G', 0}});
        if (kind == ControlKind::checkBox || kind == ControlKind::optionButton)
            keys.push_back({VK_SPACE, 0});
        if (open) // else they press the default button and the one that cancels
            keys.insert(keys.end(), {{VK_RETURN, 0}, {VK_ESCAPE, 0}, {VK_RETURN, 0}, {VK_ESCAPE, 0}});
        else
            keys.push_back({VK_TAB, VK_CONTROL});
        const Key chosen = keys[below(static_cast<unsigned>(keys.size()))];
        type(chosen.key, chosen.modifier);
        return "key " + std::to_string(chosen.key) + " with " + std::to_string(chosen.modifier) +
               " at kind " + std::to_string(static_cast<int>(kind));
    }

    /// Of a window that is seen, on the screen.
    POINT place(HWND window) {
        RECT rect{};
        GetWindowRect(window, &rect);
        const auto width = static_cast<unsigned>(rect.right - rect.left);
        const auto height = static_cast<unsigned>(rect.bottom - rect.top);
        return {rect.left + static_cast<LONG>(below(std::max(width, 1U))),
                rect.top + static_cast<LONG>(below(std::max(height, 1U)))};
    }

    std::string click() {
        std::vector<HWND> targets;
        for (forms::Control* control : controls_) {
            const HWND window = win32::native(control->hWnd());
            const ControlKind kind = control->kind();
            const bool opens = kind == ControlKind::commandButton || kind == ControlKind::frame;
            if (!opens && window != nullptr && IsWindowVisible(window) != FALSE)
                targets.push_back(window);
            COMBOBOXINFO info{};
            info.cbSize = sizeof info;
            if (kind == ControlKind::comboBox && GetComboBoxInfo(window, &info) != FALSE &&
                IsWindowVisible(info.hwndList) != FALSE)
                targets.insert(targets.end(), 20, info.hwndList);
        }
        const POINT at = place(targets[below(static_cast<unsigned>(targets.size()))]);
        const HWND hit = WindowFromPoint(at);
        char name[16] = {};
        GetClassNameA(hit, name, sizeof name);
        for (forms::Control* control : controls_)
            if (control->kind() == ControlKind::commandButton && win32::native(control->hWnd()) == hit)
                return "nothing";
        SetCursorPos(at.x, at.y);
        std::vector<INPUT> inputs(2);
        inputs[0].type = inputs[1].type = INPUT_MOUSE;
        inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
        inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
        send(inputs);
        return std::string("click on ") + name + " at " + std::to_string(at.x) + " " + std::to_string(at.y);
    }

    forms::Form& form_;
    std::mt19937 random_;
    std::vector<forms::Control*> controls_;
};

constexpr const char* settings =
    "[toolbar]\r\nautoEAGLE=1\r\nEAGLEpath=C:\\eagle\\eagle.exe\r\n"
    "[board]\r\n1name=Fit\r\n1path=window fit\r\n1dialog=0\r\n1type=1\r\n"
    "2name=Rip up\r\n2path=ripup\r\n2dialog=1\r\n2param=Which?\r\n2type=1\r\n"
    "3name=-\r\n3dialog=0\r\n3type=2\r\n4name=Tool\r\n4path=C:\\tool.exe\r\n4dialog=2\r\n4type=0\r\n"
    "[schem]\r\n1name=Fit\r\n1path=window fit\r\n1dialog=0\r\n1type=1\r\n";

} // namespace

TEST_SUITE_BEGIN("contract/windows/setupWalk");

TEST_CASE("400 keys and clicks through the setup: every window shows what its control holds") {
    World world;
    world.writeFile(World::settingsPath(), settings);
    store::loadButtonLists(0);
    for (const unsigned seed : {1U, 2U}) {
        setup::frmSetup form;
        form.loadResources();
        form.setType(static_cast<std::int16_t>(seed - 1)); // the options first, then the board's list
        form.show();
        Walk walk(form, seed);
        SetForegroundWindow(walk.window());
        REQUIRE(
            World::until([&] { return GetForegroundWindow() == walk.window() && GetFocus() != nullptr; }));
        std::string lately;
        for (int number = 0; number < 200; ++number) {
            const std::string step = walk.step();
            lately = (lately + "; " + step).substr(lately.size() > 400 ? lately.size() - 400 : 0);
            REQUIRE(form.visible());
            for (forms::Control* control : walk.controls()) {
                if (control->hWnd() == platform::HWND::none)
                    continue;
                const State shown = stateOf(*control);
                const State styles = stylesOf(*control);
                if (shown.window == shown.model && styles.window == styles.model)
                    continue;
                CAPTURE(seed);
                CAPTURE(number);
                CAPTURE(lately);
                CAPTURE(static_cast<int>(control->kind()));
                REQUIRE(shown.window == shown.model);
                REQUIRE(styles.window == styles.model);
            }
        }
        MESSAGE("seed ", seed, " ends on page ", form.TabStrip1.tab());
    }
    store::languageOffset = 0;
}

TEST_SUITE_END();
