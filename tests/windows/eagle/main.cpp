// A stand-in for EAGLE, for tests and for the demonstration: its windows with their titles, a command field
// that takes what is typed, and a journal of everything that it received. It knows nothing of Kestrel.
//
// Environment: EAGLE_JOURNAL and EAGLE_CONTROL name the journal and the file of orders (by default
// eagle-journal.txt and eagle-control.txt beside the program), EAGLE_LANGUAGE=de makes it German.
// The option -D, before all others, says how finely it sees the screen: "system" the main screen's pixels,
// "monitor" those of each; without it it is shown 96 to the inch.
#include "common/journal.h"
#include "common/orders.h"
#include "eagle/commandLine.h"
#include "eagle/controlPanel.h"
#include "eagle/eagle.h"
#include "eagle/editor.h"

#include <windows.h>

#include <memory>

static constexpr UINT orderMessage = WM_APP;

// Orders go to a window, not to the thread: menus and the dragging of a frame run loops of their own, which
// serve windows only.
static LRESULT CALLBACK ordersProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != orderMessage)
        return DefWindowProcW(window, message, wParam, lParam);
    const std::unique_ptr<orders::Order> order(reinterpret_cast<orders::Order*>(lParam));
    eagle::obey(*order);
    return 0;
}

static HWND makeOrdersWindow() {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = ordersProc;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"EagleOrders";
    RegisterClassW(&windowClass);
    return CreateWindowExW(0, windowClass.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                           windowClass.hInstance, nullptr);
}

// On the orders' thread: everything is the window thread's to do, but a program that hangs can still be
// killed, or woken before its time.
static void passOn(HWND ordersWindow, const orders::Order& order) {
    if (order.verb == L"kill") {
        journal::write("killed");
        TerminateProcess(GetCurrentProcess(), 9);
    }
    if (order.verb == L"wake") {
        eagle::wake();
        return orders::done(order);
    }
    auto copy = std::make_unique<orders::Order>(order);
    if (PostMessageW(ordersWindow, orderMessage, 0, reinterpret_cast<LPARAM>(copy.get())))
        copy.release(); // the window owns it now
}

// The system of today knows how to see each screen's pixels; it is asked for at run time, as an older one
// lacks it.
static void see(const std::wstring& what) {
    if (what.empty())
        return;
    const HMODULE user = GetModuleHandleW(L"user32.dll");
    const auto set = reinterpret_cast<BOOL(WINAPI*)(DPI_AWARENESS_CONTEXT)>(
        reinterpret_cast<void*>(GetProcAddress(user, "SetProcessDpiAwarenessContext")));
    const bool monitor = what == L"monitor";
    const bool done =
        set && set(monitor ? DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2 : DPI_AWARENESS_CONTEXT_SYSTEM_AWARE);
    journal::write("sees", {done ? what : L"nothing"});
}

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    journal::open(L"EAGLE_JOURNAL", L"eagle-journal.txt");
    wchar_t language[8] = {};
    GetEnvironmentVariableW(L"EAGLE_LANGUAGE", language, 8);
    const bool german = wcscmp(language, L"de") == 0;

    const std::wstring line = GetCommandLineW();
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const commandLine::Start start = commandLine::parse(line, program);
    journal::write("started", {line});
    journal::write("option", {start.command, start.file});
    see(start.sees);

    editor::registerClasses();
    controlPanel::open();
    eagle::start(start, german);

    orders::listen(journal::besideProgram(L"EAGLE_CONTROL", L"eagle-control.txt"),
                   [window = makeOrdersWindow()](const orders::Order& order) { passOn(window, order); });
    journal::write("ready");

    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    journal::write("ended");
    return 0;
}
