// The other program: opens, renames and closes windows as it is told through its standard input, and can
// hang. It ends with its input.
#include "contract/windows/otherProgramMain.h"

#include "contract/windows/orders.h"

#include <windows.h>

#include <atomic>
#include <cstdint>
#include <iostream>
#include <thread>

namespace contract {

namespace {

constexpr UINT orderMessage = WM_APP;
constexpr UINT hangMessage = WM_APP + 1;
constexpr const char* windowClass = "KestrelContractWindow";
constexpr const char* ghostClass = "Ghost"; // as the system's own are named
constexpr int editorId = 100;

HANDLE hanging = nullptr; // set as soon as the thread of the windows sleeps
HANDLE woken = nullptr;   // set when it is to go on before its time
std::atomic<bool> sleeps; // that thread

struct Order {
    std::istringstream words;
    std::string answer = "done";
};

HWND handleFrom(std::istringstream& words) {
    std::uintptr_t number = 0;
    words >> number;
    return reinterpret_cast<HWND>(number);
}

std::string textFrom(std::istringstream& words) {
    std::string word;
    words >> word;
    return fromWord(word);
}

std::string answerOf(HWND window) {
    return std::to_string(reinterpret_cast<std::uintptr_t>(window));
}

HWND makeWindow(const std::string& title, const RECT& place, DWORD exStyle,
                const char* className = windowClass) {
    return CreateWindowExA(exStyle, className, title.c_str(), WS_OVERLAPPEDWINDOW, place.left, place.top,
                           place.right - place.left, place.bottom - place.top, nullptr, nullptr,
                           GetModuleHandleA(nullptr), nullptr);
}

std::string open(std::istringstream& words) {
    RECT place{};
    int visible = 0;
    words >> place.left >> place.top >> place.right >> place.bottom >> visible;
    // A window manager that gives the keyboard to each new window, a moment later, would change the order
    // again.
    const HWND made = makeWindow(textFrom(words), place, WS_EX_NOACTIVATE);
    if (visible != 0)
        ShowWindow(made, SW_SHOWNOACTIVATE);
    return answerOf(made);
}

std::string openGhost(std::istringstream& words) {
    const HWND made = makeWindow(textFrom(words), {60, 60, 460, 360}, WS_EX_NOACTIVATE, ghostClass);
    ShowWindow(made, SW_SHOWNOACTIVATE);
    return answerOf(made);
}

std::string openEditor() {
    const HWND made = makeWindow("Editor", {60, 60, 660, 360}, 0);
    CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL, 0, 0,
                    580, 260, made, reinterpret_cast<HMENU>(static_cast<INT_PTR>(editorId)),
                    GetModuleHandleW(nullptr), nullptr);
    ShowWindow(made, SW_SHOW);
    SetForegroundWindow(made);
    return answerOf(made);
}

std::string textOf(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

/// "none" if the clipboard holds no text.
std::string clipboardText() {
    std::string answer = "none";
    if (OpenClipboard(nullptr) == FALSE)
        return answer;
    if (const HANDLE block = GetClipboardData(CF_TEXT)) {
        answer = asWord(static_cast<const char*>(GlobalLock(block)));
        GlobalUnlock(block);
    }
    CloseClipboard();
    return answer;
}

/// Whoever opens the clipboard has to close it: both are done by the thread of the windows.
void CALLBACK closeClipboard(HWND window, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
    KillTimer(window, timer);
    CloseClipboard();
}

std::string holdClipboard(HWND receiver, UINT milliseconds) {
    if (OpenClipboard(receiver) == FALSE)
        return "refused";
    SetTimer(receiver, 1, milliseconds, closeClipboard);
    return "done";
}

void carryOut(HWND receiver, Order& order) {
    std::string verb;
    order.words >> verb;
    if (verb == "open") {
        order.answer = open(order.words);
    } else if (verb == "openGhost") {
        order.answer = openGhost(order.words);
    } else if (verb == "openEditor") {
        order.answer = openEditor();
    } else if (verb == "close") {
        DestroyWindow(handleFrom(order.words));
    } else if (verb == "rename") {
        const HWND window = handleFrom(order.words);
        SetWindowTextA(window, textFrom(order.words).c_str());
    } else if (verb == "editorText") {
        order.answer = asWord(textOf(GetDlgItem(handleFrom(order.words), editorId)));
    } else if (verb == "clearEditor") {
        SetWindowTextA(GetDlgItem(handleFrom(order.words), editorId), "");
    } else if (verb == "editorHasFocus") {
        const HWND editor = GetDlgItem(handleFrom(order.words), editorId);
        order.answer = editor != nullptr && GetFocus() == editor ? "1" : "0";
    } else if (verb == "clipboardText") {
        order.answer = clipboardText();
    } else if (verb == "holdClipboard") {
        UINT milliseconds = 0;
        order.words >> milliseconds;
        order.answer = holdClipboard(receiver, milliseconds);
    } else {
        order.answer = "unknown";
    }
}

LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case orderMessage:
        carryOut(window, *reinterpret_cast<Order*>(lParam));
        return 0;
    case hangMessage:
        sleeps = true;
        SetEvent(hanging);
        WaitForSingleObject(woken, static_cast<DWORD>(wParam));
        sleeps = false;
        return 0;
    case WM_SETFOCUS:
        if (const HWND editor = GetDlgItem(window, editorId); editor != nullptr)
            SetFocus(editor);
        return 0;
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

/// Takes orders until there are no more, then ends the process, whatever its windows are doing.
void takeOrders(HWND receiver) {
    std::string line;
    while (std::getline(std::cin, line)) {
        Order order{std::istringstream(line)};
        DWORD milliseconds = 0;
        if (line.starts_with("hang ") && std::istringstream(line.substr(5)) >> milliseconds) {
            ResetEvent(woken);
            PostMessageA(receiver, hangMessage, milliseconds, 0);
            WaitForSingleObject(hanging, INFINITE);
        } else if (line == "wake") {
            SetEvent(woken);
        } else if (line == "hangs") {
            order.answer = sleeps ? "1" : "0";
        } else {
            SendMessageA(receiver, orderMessage, 0, reinterpret_cast<LPARAM>(&order));
        }
        std::cout << order.answer << std::endl;
    }
    ExitProcess(0);
}

} // namespace

int otherProgramMain() {
    hanging = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    woken = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    WNDCLASSA description{};
    description.lpfnWndProc = windowProcedure;
    description.hInstance = GetModuleHandleA(nullptr);
    description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    description.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_WINDOW + 1));
    description.lpszClassName = windowClass;
    RegisterClassA(&description);
    description.lpszClassName = ghostClass;
    RegisterClassA(&description);
    // Receives the orders and is no top-level window, so that no test sees it.
    const HWND receiver = CreateWindowExA(0, windowClass, "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                          GetModuleHandleA(nullptr), nullptr);
    std::thread(takeOrders, receiver).detach();
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}

} // namespace contract
