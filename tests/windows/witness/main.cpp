// The driver's eyes and hands inside the Windows world, a console program without windows of its own. It
// stands apart from the stand-in EAGLE, so that it goes on seeing while that one hangs. It obeys orders
// until it is told to quit:
//
//   dump FILE [WINDOW]        writes what stands on the desktop, or in one window, (windowTree.h) to a file
//   run LINE                  starts a command line exactly as given; answers with the process id, and the
//                             journal tells "exited" with id and code when it has ended
//   ping WINDOW MILLISECONDS  answers with the milliseconds that the window took to answer; fails if it did
//                             not
//   active WINDOW             answers with the handle of the window that the window's thread has for the
//   active
//                             one, which is another program's where the input of the two is joined
//   post WINDOW MESSAGE W L   posts a message; it may be given by number or as @Name of a registered one,
//                             the window may be "all"
//   appears CLASS TITLE [WINDOW]
//                             answers as soon as there is a visible window of this class whose title begins
//                             so, or that has none, a top-level one, or a child of the window
//   front                     from now on the journal tells "front" with handle and title of each window that
//                             comes to the front, be it for a moment
//   untray WINDOW             takes the tray icon of a window away, as a shell does that starts anew
//   terminate ID              ends a process by force
//   quit
//
// Environment: WITNESS_JOURNAL, WITNESS_CONTROL (by default witness-journal.txt and witness-control.txt
// beside the program).
#include "common/journal.h"
#include "common/orders.h"
#include "witness/windowTree.h"

#include <windows.h>

#include <shellapi.h>

#include <map>
#include <string>
#include <thread>

using orders::Order;

static HWND windowAt(const Order& order, size_t index) {
    return reinterpret_cast<HWND>(static_cast<UINT_PTR>(order.numberAt(index)));
}

static void orderDump(const Order& order) {
    const HANDLE file =
        CreateFileW(order.word(0).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return orders::failed(order, L"cannot write the file");
    const std::string tree = windowTree::dump(windowAt(order, 1));
    DWORD written = 0;
    WriteFile(file, tree.data(), static_cast<DWORD>(tree.size()), &written, nullptr);
    CloseHandle(file);
    orders::done(order);
}

static void orderRun(const Order& order) {
    std::wstring line = order.word(0);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started = {};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &started))
        return orders::failed(order, L"error " + std::to_wstring(GetLastError()));
    CloseHandle(started.hThread);
    orders::done(order, std::to_wstring(started.dwProcessId));
    std::thread([started] {
        WaitForSingleObject(started.hProcess, INFINITE);
        DWORD code = 0;
        GetExitCodeProcess(started.hProcess, &code);
        CloseHandle(started.hProcess);
        journal::write("exited", {std::to_wstring(started.dwProcessId), std::to_wstring(code)});
    }).detach();
}

static void orderPing(const Order& order) {
    const DWORD begin = GetTickCount();
    DWORD_PTR answer = 0;
    if (SendMessageTimeoutW(windowAt(order, 0), WM_NULL, 0, 0, SMTO_NORMAL,
                            static_cast<UINT>(order.numberAt(1)), &answer))
        orders::done(order, std::to_wstring(GetTickCount() - begin));
    else
        orders::failed(order, L"no answer");
}

static void orderActive(const Order& order) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    if (GetGUIThreadInfo(GetWindowThreadProcessId(windowAt(order, 0), nullptr), &info))
        orders::done(order, std::to_wstring(reinterpret_cast<UINT_PTR>(info.hwndActive)));
    else
        orders::failed(order, L"error " + std::to_wstring(GetLastError()));
}

static void orderPost(const Order& order) {
    const std::wstring name = order.word(1);
    const UINT message = name.starts_with(L'@') ? RegisterWindowMessageW(name.c_str() + 1)
                                                : static_cast<UINT>(order.numberAt(1));
    const HWND window = order.word(0) == L"all" ? HWND_BROADCAST : windowAt(order, 0);
    if (PostMessageW(window, message, static_cast<WPARAM>(order.numberAt(2)),
                     static_cast<LPARAM>(order.numberAt(3))))
        orders::done(order);
    else
        orders::failed(order, L"error " + std::to_wstring(GetLastError()));
}

static bool isThere(HWND parent, const std::wstring& className, const std::wstring& begin) {
    HWND window = nullptr;
    while ((window = FindWindowExW(parent, window, className.c_str(), nullptr)) != nullptr) {
        wchar_t title[256] = {};
        InternalGetWindowText(window, title, 256); // asks nobody
        const bool titled = begin.empty() ? title[0] == 0 : std::wstring_view(title).starts_with(begin);
        if (titled && IsWindowVisible(window))
            return true;
    }
    return false;
}

static void orderAppears(const Order& order) {
    constexpr ULONGLONG patience = 20'000; // milliseconds
    for (const ULONGLONG begin = GetTickCount64(); GetTickCount64() - begin < patience; Sleep(10))
        if (isThere(windowAt(order, 2), order.word(0), order.word(1)))
            return orders::done(order);
    orders::failed(order, L"it does not appear");
}

static void orderFront(const Order& order) {
    std::thread([] {
        HWND front = nullptr;
        for (;; Sleep(1)) {
            const HWND now = GetForegroundWindow();
            if (now == front)
                continue;
            front = now;
            wchar_t title[256] = {};
            InternalGetWindowText(now, title, 256); // asks nobody: its program may hang
            journal::write("front", {std::to_wstring(reinterpret_cast<UINT_PTR>(now)), title});
        }
    }).detach();
    orders::done(order);
}

static void orderUntray(const Order& order) {
    NOTIFYICONDATAW record = {};
    record.cbSize = sizeof record;
    record.hWnd = windowAt(order, 0);
    record.uID = 2; // the only one that the program under test has
    if (Shell_NotifyIconW(NIM_DELETE, &record))
        orders::done(order);
    else
        orders::failed(order, L"there is no such icon");
}

static void orderTerminate(const Order& order) {
    const HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, static_cast<DWORD>(order.numberAt(0)));
    const bool ended = process && TerminateProcess(process, 9);
    if (process)
        CloseHandle(process);
    if (ended)
        orders::done(order);
    else
        orders::failed(order, L"no such process");
}

// With the word "pixels" it sees the pixels that the screen has, at whatever number to the inch; without
// it 96.
static void seePixels() {
    const HMODULE user = GetModuleHandleW(L"user32.dll");
    const auto set = reinterpret_cast<BOOL(WINAPI*)(DPI_AWARENESS_CONTEXT)>(
        reinterpret_cast<void*>(GetProcAddress(user, "SetProcessDpiAwarenessContext")));
    if (set)
        set(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
}

int wmain(int count, wchar_t** words) {
    if (count > 1 && std::wstring_view(words[1]) == L"pixels")
        seePixels();
    journal::open(L"WITNESS_JOURNAL", L"witness-journal.txt");
    const HANDLE quit = CreateEventW(nullptr, TRUE, FALSE, nullptr); // lives as long as the program
    static const std::map<std::wstring, void (*)(const Order&)> actions = {
        {L"dump", orderDump},           {L"run", orderRun},
        {L"ping", orderPing},           {L"post", orderPost},
        {L"terminate", orderTerminate}, {L"untray", orderUntray},
        {L"front", orderFront},         {L"active", orderActive},
        {L"appears", orderAppears},
    };
    orders::listen(journal::besideProgram(L"WITNESS_CONTROL", L"witness-control.txt"),
                   [quit](const Order& order) {
                       const auto found = actions.find(order.verb);
                       if (found != actions.end()) {
                           found->second(order);
                       } else if (order.verb == L"quit") {
                           orders::done(order);
                           SetEvent(quit);
                       } else {
                           orders::failed(order, L"unknown verb");
                       }
                   });
    journal::write("ready");
    WaitForSingleObject(quit, INFINITE);
    return 0;
}
