#include "toolbarBench.h"

#include "bareEditor.h"

#include "core/hauptform.h"
#include "store/buttonLists.h"
#include "store/state.h"
#include "toolbars/frmToolbar.h"
#include "win32/common/messages.h"

#include <windows.h>

#include <commctrl.h>
#include <tlhelp32.h>

#include <array>
#include <cstring>

namespace bench {

namespace {

void fillList(int buttonCount) {
    store::boardButtons.redim(buttonCount);
    for (int row = 1; row <= buttonCount; ++row) {
        store::ToolButton& button = store::boardButtons[row];
        button.name = "button";
        button.path = "window fit";
        button.tooltip = "a tip";
        button.icon = iconFile(row) + ",0";
        button.type = 1;
        button.live = 1;
    }
}

constexpr int editorButtons = 40;

HWND newHost() {
    return CreateWindowExA(0, "STATIC", "1 Board - C:\\work\\demo.brd - EAGLE 5.11.0 Light",
                           WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 800, 600, nullptr, nullptr, nullptr,
                           nullptr);
}

/// One title, in which each kind of editor is looked for.
BOOL CALLBACK readTitle(HWND window, LPARAM found) {
    std::array<char, 256> title;
    GetWindowTextA(window, title.data(), static_cast<int>(title.size()));
    for (const char* text : {"Board -", "Schematic -", "Schaltplan -", "Library -", "Bibliothek -"})
        if (std::strstr(title.data(), text) != nullptr)
            *reinterpret_cast<HWND*>(found) = window;
    return TRUE;
}

/// A pass over all windows.
void readTitlesBare() {
    HWND found = nullptr;
    EnumWindows(readTitle, reinterpret_cast<LPARAM>(&found));
}

/// What a tick asks first: each process, and the titles.
void searchBare() {
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32First(snapshot, &entry); more != FALSE; more = Process32Next(snapshot, &entry))
        static_cast<void>(lstrcmpiA(entry.szExeFile, "eagle.exe"));
    CloseHandle(snapshot);
    readTitlesBare();
}

/// The main form once it has found a new editor.
class FirstEditor {
  public:
    FirstEditor() {
        fillList(editorButtons);
        store::unitName = {"mil", "mm"};
        store::unitAccuracy = {"@", "@"};
        store::unitCalcActive = 1;
    }

    core::Hauptform form;
};

/// Each editor comes, gets what it gets, and goes. A window that stands all the time, as a running program
/// has one: the system makes something for the first window of a thread, and ends it with the last.
template <typename Made>
void eachEditor(int count, const Made& made) {
    const HWND standing = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                          GetModuleHandleA(nullptr), nullptr);
    for (int round = 0; round < count; ++round)
        made(newHost());
    DestroyWindow(standing);
}

void close(HWND host) {
    win32::servePending();
    DestroyWindow(host);
    win32::servePending();
}

} // namespace

void load(int count, int buttonCount) {
    fillList(buttonCount);
    toolbars::frmToolbarBRD form;
    form.load();
    form.show();
    for (int round = 0; round < count; ++round) {
        form.loadVarBar();
        win32::servePending();
    }
}

void loadBare(int count, int buttonCount) {
    toolbars::frmToolbarBRD form; // for a host of the same kind
    form.load();
    form.show();
    const HWND host = reinterpret_cast<HWND>(form.window());
    const HWND bar = CreateWindowExA(0, TOOLBARCLASSNAMEA, "",
                                     WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | TBSTYLE_WRAPABLE | CCS_NORESIZE,
                                     0, 0, 120, 440, host, nullptr, nullptr, nullptr);
    SendMessageA(bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    for (int round = 0; round < count; ++round) {
        fillBare(bar, buttonCount);
        win32::servePending();
    }
}

void newEditors(int count) {
    FirstEditor editor;
    eachEditor(count, [&editor](HWND host) {
        editor.form.setWindow();
        close(host);
    });
}

void newEditorsBare(int count) {
    eachEditor(count, [](HWND host) {
        searchBare();
        const BareEditor editor(host, editorButtons);
        readTitlesBare(); // anew, since something has been made
        close(host);
    });
}

} // namespace bench
