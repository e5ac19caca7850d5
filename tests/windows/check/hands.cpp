#include "check/hands.h"
#include "check/waiting.h"
#include "check/workplace.h"

#include <vector>

namespace hands {

static void send(std::vector<INPUT> inputs) {
    const auto count = static_cast<UINT>(inputs.size());
    if (SendInput(count, inputs.data(), sizeof(INPUT)) != count)
        throw waiting::Failure("the system takes no input: error " + std::to_string(GetLastError()));
}

// In parts of 65536 of all screens together, in the middle of the pixel.
static INPUT mouse(POINT place, DWORD flags) {
    const auto part = [](LONG at, int from, int size) {
        return static_cast<LONG>((2LL * (at - from) + 1) * 32768 / size);
    };
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = part(place.x, GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_CXVIRTUALSCREEN));
    input.mi.dy = part(place.y, GetSystemMetrics(SM_YVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN));
    input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_VIRTUALDESK | MOUSEEVENTF_MOVE;
    return input;
}

static INPUT key(WORD virtualKey, WORD scan, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = scan;
    input.ki.dwFlags = flags;
    return input;
}

static POINT middleOf(const RECT& place) {
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

void awaitRest() {
    constexpr DWORD rest = 2000; // milliseconds
    // A mouse on a table that shakes never rests.
    (void)waiting::until(
        [] {
            LASTINPUTINFO last = {sizeof last, 0};
            return !GetLastInputInfo(&last) || GetTickCount() - last.dwTime >= rest;
        },
        10);
}

bool reach(HWND window, const RECT& place) {
    return GetAncestor(WindowFromPoint(middleOf(place)), GA_ROOT) == window;
}

void click(HWND window, const RECT& place) {
    if (!waiting::until([&] { return reach(window, place); }, 5))
        throw waiting::Failure("another window covers the place of a click");
    const POINT middle = middleOf(place);
    const bool swapped = GetSystemMetrics(SM_SWAPBUTTON) != 0;
    // In two steps, as a hand does it: buttons that light up under the mouse see it come first.
    send({mouse({middle.x - 1, middle.y}, 0)});
    waiting::pause(20);
    send({mouse(middle, 0), mouse(middle, swapped ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN),
          mouse(middle, swapped ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP)});
}

void point(const RECT& place) {
    send({mouse(middleOf(place), 0)});
}

static void needKeyboard() {
    if (!waiting::until([] { return workplace::isOurs(GetForegroundWindow()); }, 5))
        throw waiting::Failure("another program has the keyboard");
}

void type(const std::wstring& text) {
    for (const wchar_t letter : text) {
        needKeyboard();
        // As a character: a key would give another one in another layout of the keyboard.
        const auto scan = static_cast<WORD>(letter);
        send({key(0, scan, KEYEVENTF_UNICODE), key(0, scan, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP)});
        waiting::pause(10);
    }
}

void press(WORD virtualKey) {
    needKeyboard();
    const auto scan = static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
    send({key(virtualKey, scan, 0), key(virtualKey, scan, KEYEVENTF_KEYUP)});
}

// Under Wine the report of an earlier movement may come late and move it back.
KeptPointer::~KeptPointer() {
    int rested = 0;
    for (int turn = 0; turn < 50 && rested < 5; ++turn) {
        POINT now = {};
        GetCursorPos(&now);
        rested = now.x == place_.x && now.y == place_.y ? rested + 1 : 0;
        if (rested == 0)
            SetCursorPos(place_.x, place_.y);
        Sleep(20);
    }
}

} // namespace hands
