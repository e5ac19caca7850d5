// Injects key strokes: one batch for a text, so that nothing the user types gets between.
#include "platform/keySender.h"

#include "win32/common/focusKeeper.h"
#include "win32/common/messages.h"

#include <windows.h>

#include <string>
#include <vector>

namespace {

using platform::Key;
using platform::KeyStroke;

using Inputs = std::vector<INPUT>;

bool isExtended(WORD key) {
    switch (key) {
    case VK_PRIOR:
    case VK_NEXT:
    case VK_END:
    case VK_HOME:
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
    case VK_SNAPSHOT:
    case VK_INSERT:
    case VK_DELETE:
    case VK_NUMLOCK:
    case VK_CANCEL:
    case VK_RCONTROL:
    case VK_RMENU:
    case VK_LWIN:
    case VK_RWIN:
        return true;
    default:
        return false;
    }
}

void addKey(Inputs& inputs, WORD key, bool release) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = (isExtended(key) ? KEYEVENTF_EXTENDEDKEY : 0U) | (release ? KEYEVENTF_KEYUP : 0U);
    inputs.push_back(input);
}

/// Plain characters, together.
void addText(Inputs& inputs, std::u16string& text) {
    for (const char16_t unit : text)
        for (const DWORD release : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wScan = unit;
            input.ki.dwFlags = KEYEVENTF_UNICODE | release;
            inputs.push_back(input);
        }
    text.clear();
}

/// What the user holds down would change the keys that are typed.
void releaseModifiers(Inputs& inputs) {
    // A key between keeps the release of Alt or of the Windows key from opening a menu.
    for (const int key : {VK_LMENU, VK_RMENU, VK_LWIN, VK_RWIN})
        if (GetAsyncKeyState(key) < 0) {
            addKey(inputs, VK_CONTROL, false);
            addKey(inputs, VK_CONTROL, true);
            break;
        }
    for (const int key :
         {VK_LSHIFT, VK_RSHIFT, VK_LCONTROL, VK_RCONTROL, VK_LMENU, VK_RMENU, VK_LWIN, VK_RWIN})
        if (GetAsyncKeyState(key) < 0)
            addKey(inputs, static_cast<WORD>(key), true);
}

constexpr char32_t beyondBmp = 0x10000; // two units of UTF-16 from here on

void addCharacter(std::u16string& text, char32_t character) {
    if (character >= beyondBmp) {
        text += static_cast<char16_t>(0xD7C0 + (character >> 10U));
        character = 0xDC00 + (character & 0x3FFU);
    }
    text += static_cast<char16_t>(character);
}

/// The key that gives a character under modifiers, and whether it needs Shift; 0 if no key gives it by
/// itself.
WORD keyOf(const KeyStroke& stroke, bool& shift) {
    if (stroke.key != Key::none)
        return static_cast<WORD>(stroke.key);
    if (stroke.character >= beyondBmp)
        return 0;
    const SHORT scanned = VkKeyScanW(static_cast<wchar_t>(stroke.character));
    constexpr int beyondShift = 0x6;
    if (scanned == -1 || (HIBYTE(scanned) & beyondShift) != 0)
        return 0;
    shift = shift || (HIBYTE(scanned) & 1) != 0;
    return LOBYTE(scanned);
}

/// A key under its modifiers. A character that no key gives by itself cannot be modified: it joins the plain
/// text.
void addStroke(Inputs& inputs, const KeyStroke& stroke, std::u16string& text) {
    bool shift = stroke.shift;
    const bool plain = stroke.key == Key::none && !stroke.shift && !stroke.control && !stroke.alt;
    const WORD key = plain ? WORD{0} : keyOf(stroke, shift);
    if (key == 0) {
        addCharacter(text, stroke.character);
        return;
    }
    addText(inputs, text);
    const struct {
        bool on;
        WORD key;
    } modifiers[] = {{shift, VK_SHIFT}, {stroke.control, VK_CONTROL}, {stroke.alt, VK_MENU}};
    for (const auto& modifier : modifiers)
        if (modifier.on)
            addKey(inputs, modifier.key, false);
    addKey(inputs, key, false);
    addKey(inputs, key, true);
    for (const auto& modifier : modifiers)
        if (modifier.on)
            addKey(inputs, modifier.key, true);
}

/// Milliseconds that a host is waited for after typing: longer than EAGLE redraws a board after a command, so
/// that what is typed next finds it ready, and well below the 5 s after which the system tells a program that
/// hangs from one that is busy.
constexpr DWORD longest = 2000;

/// Before typing the wait is longer: one that takes 2 s is to have had the keyboard when it is typed to.
constexpr DWORD longestForKeyboard = 2500;

/// Between two looks at our own messages: shorter than the 200 from tick to tick.
constexpr UINT slice = 50;

/// The dialog that asked for an argument could not give the keyboard back to a host that was busy: it gets it
/// now, or as soon as it answers. Our own messages are served meanwhile.
void takeKeyboardBack() {
    const win32::KeyboardPlace owed = win32::takeOwedKeyboard();
    if (owed.front == nullptr)
        return;
    const DWORD begin = GetTickCount();
    while (!owed.give()) {
        if (GetTickCount() - begin >= longestForKeyboard) {
            // What is typed waits for it there, where otherwise it would go to a window that it is not for.
            owed.bring();
            return;
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, slice, QS_ALLINPUT);
        win32::servePending();
    }
}

/// Serves our own messages until the window in front answers, but not for ever.
void waitUntilProcessed() {
    const DWORD begin = GetTickCount();
    do {
        win32::servePending();
        DWORD_PTR answer = 0;
        const HWND front = GetForegroundWindow();
        if (front == nullptr || SendMessageTimeoutA(front, WM_NULL, 0, 0, SMTO_NORMAL, slice, &answer) != 0)
            return;
    } while (GetTickCount() - begin < longest);
}

} // namespace

namespace platform {

void sendKeys(std::span<const KeyStroke> strokes, bool wait) {
    takeKeyboardBack();
    Inputs inputs;
    inputs.reserve(strokes.size() * 2 + 8);
    releaseModifiers(inputs);
    std::u16string text;
    for (const KeyStroke& stroke : strokes)
        addStroke(inputs, stroke, text);
    addText(inputs, text);
    if (!inputs.empty())
        SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    if (wait)
        waitUntilProcessed();
}

} // namespace platform
