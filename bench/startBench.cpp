// What the start of the program is measured with, and a key in the calculator beside a bare counterpart.
// Measured from outside by bench/run.py.
//
//   start-bench splash         the splash until it goes by itself, then the end
//   start-bench plain          the window that a plain program shows in its place, then the end
//   start-bench stay           says that it is ready and stays, so that the system does
//   start-bench launch FILE    the same; a second later it starts a program, and ends after that
//   start-bench keys N         N releases of a key in the calculator's left field
//   start-bench keys-bare N    N releases of a key in a field whose owner sets the text of another
#include "calculator/frmMil.h"
#include "core/frmSplash.h"
#include "plainWindow.h"
#include "store/state.h"
#include "win32/common/messages.h"

#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

void sayReady() {
    std::puts("ready");
    std::fflush(stdout);
}

/// With a window: the system makes something for the first one, and ends it with the last.
void stay() {
    CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    sayReady();
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
}

/// Whoever waits for it has seen by the second's end that it is ready.
bool launch(const char* file) {
    constexpr DWORD aSecond = 1000;
    sayReady();
    Sleep(aSecond);
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION made{};
    if (CreateProcessA(file, nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &made) == FALSE)
        return false;
    WaitForSingleObject(made.hProcess, INFINITE);
    return true;
}

void keys(int count) {
    store::unitAccuracy = {"@", "0.####"};
    calculator::frmMil form;
    form.load();
    form.show();
    const auto left = reinterpret_cast<HWND>(form.txtSize[0].hWnd());
    for (int key = 0; key < count; ++key) {
        form.txtSize[0].setText(std::to_string(key));
        SendMessageA(left, WM_KEYUP, '1', 0);
        win32::servePending();
    }
}

HWND bareResult = nullptr;

LRESULT CALLBACK bareField(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                           DWORD_PTR /*data*/) {
    if (message == WM_KEYUP) {
        char text[32];
        GetWindowTextA(window, text, sizeof text);
        SetWindowTextA(bareResult, text);
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

void keysBare(int count) {
    calculator::frmMil form; // for a host of the same kind
    form.load();
    form.show();
    const auto host = reinterpret_cast<HWND>(form.fraMil.hWnd());
    const DWORD style = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL;
    const HWND left =
        CreateWindowExA(WS_EX_CLIENTEDGE, "EDIT", "", style, 24, 0, 69, 18, host, nullptr, nullptr, nullptr);
    bareResult =
        CreateWindowExA(WS_EX_CLIENTEDGE, "EDIT", "", style, 120, 0, 69, 18, host, nullptr, nullptr, nullptr);
    SetWindowSubclass(left, bareField, 0, 0);
    for (int key = 0; key < count; ++key) {
        SetWindowTextA(left, std::to_string(key).c_str());
        SendMessageA(left, WM_KEYUP, '1', 0);
        win32::servePending();
    }
}

} // namespace

int main(int count, char** arguments) {
    const std::string_view what = count > 1 ? arguments[1] : "";
    const int number = count > 2 ? std::atoi(arguments[2]) : 0; // a number of rounds
    if (what == "splash") {
        core::splashForm().showModal();
        ExitProcess(0);
    } else if (what == "plain") {
        showPlainWindow();
        ExitProcess(0);
    } else if (what == "stay") {
        stay();
    } else if (what == "launch" && count > 2) {
        return launch(arguments[2]) ? 0 : 1;
    } else if (what == "keys") {
        keys(number);
    } else if (what == "keys-bare") {
        keysBare(number);
    } else {
        return 1;
    }
    return 0;
}
