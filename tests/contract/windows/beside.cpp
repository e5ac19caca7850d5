#include "contract/windows/beside.h"

#include <array>
#include <thread>

namespace contract {

namespace {

struct Search {
    const char* className;
    HWND found = nullptr;
};

BOOL CALLBACK compare(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    if (!isOfClass(window, search.className) || IsWindowVisible(window) == FALSE)
        return TRUE;
    search.found = window;
    return FALSE;
}

/// As the user does it: what a dialog before this one owes to its host is not made good first, as it is for
/// what the program types.
void pressKey(platform::Key key) {
    std::array<INPUT, 2> inputs{};
    for (INPUT& input : inputs) {
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = static_cast<WORD>(key);
    }
    inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

} // namespace

bool isOfClass(HWND window, std::string_view className) {
    char name[32] = {};
    GetClassNameA(window, name, sizeof name);
    return name == className;
}

void withUser(const char* className, const std::function<void()>& call,
              const std::function<void(HWND window)>& user) {
    std::thread beside([&, thread = GetCurrentThreadId()] {
        Search search{className};
        comes([&] {
            EnumThreadWindows(thread, compare, reinterpret_cast<LPARAM>(&search));
            return search.found != nullptr;
        });
        if (search.found != nullptr)
            user(search.found);
        PostMessageA(search.found, WM_COMMAND, IDOK, 0);
    });
    call();
    beside.join();
}

bool comes(const std::function<bool()>& condition) {
    constexpr ULONGLONG patience = 10'000; // milliseconds
    const ULONGLONG begin = GetTickCount64();
    while (!condition()) {
        if (GetTickCount64() - begin > patience)
            return false;
        Sleep(10);
    }
    return true;
}

bool hasKeyboard(HWND dialog) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetForegroundWindow() == dialog &&
           GetGUIThreadInfo(GetWindowThreadProcessId(dialog, nullptr), &info) != FALSE &&
           IsChild(dialog, info.hwndFocus) != FALSE;
}

bool closeBy(HWND dialog, platform::Key key) {
    if (!comes([dialog] { return hasKeyboard(dialog); }))
        return false;
    return comes([&, pressed = ULONGLONG{0}]() mutable {
        constexpr ULONGLONG again = 1'000; // milliseconds
        if (IsWindow(dialog) != FALSE && GetTickCount64() - pressed > again) {
            pressKey(key);
            pressed = GetTickCount64();
        }
        return IsWindow(dialog) == FALSE;
    });
}

LRESULT ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR answer = 0;
    constexpr UINT longest = 3'000; // milliseconds
    if (SendMessageTimeoutA(window, message, wParam, lParam, SMTO_NORMAL, longest, &answer) == 0)
        return -1;
    return static_cast<LRESULT>(answer);
}

} // namespace contract
