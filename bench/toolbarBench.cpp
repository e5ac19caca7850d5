#include "toolbarBench.h"

#include "bareDialog.h"

#include "core/hauptform.h"
#include "platform/executable.h"
#include "store/buttonLists.h"
#include "store/state.h"
#include "toolbars/frmToolbar.h"
#include "win32/common/messages.h"

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>
#include <tlhelp32.h>

#include <array>
#include <cstring>
#include <string>

namespace bench {

namespace {

constexpr int side = 16;

std::string iconFile(int button) {
    static const std::array<const char*, 3> files = {"brd.ico", "sch.ico", "lbr.ico"};
    return platform::programFolder() + "\\" + files[static_cast<std::size_t>(button) % files.size()];
}

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

/// One picture by the shortest way: the icon drawn over the mask colour, and given to the list.
void addIcon(HIMAGELIST images, HDC dc, HBITMAP bitmap, int button) {
    HICON large = nullptr;
    HICON little = nullptr;
    ExtractIconExA(iconFile(button).c_str(), 0, &large, &little, 1);
    const HGDIOBJ former = SelectObject(dc, bitmap);
    PatBlt(dc, 0, 0, side, side, WHITENESS);
    DrawIconEx(dc, 0, 0, little, 0, 0, 0, nullptr, DI_NORMAL);
    SelectObject(dc, former);
    DestroyIcon(little);
    ImageList_AddMasked(images, bitmap, RGB(255, 255, 255));
}

/// A toolbar gets buttons with icons by the shortest way.
void fillBare(HWND bar, int buttonCount) {
    while (SendMessageA(bar, TB_BUTTONCOUNT, 0, 0) > 0)
        SendMessageA(bar, TB_DELETEBUTTON, 0, 0);
    const HIMAGELIST images = ImageList_Create(side, side, ILC_COLOR32 | ILC_MASK, buttonCount, 1);
    const HDC screen = GetDC(nullptr);
    const HDC dc = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, side, side);
    for (int button = 1; button <= buttonCount; ++button)
        addIcon(images, dc, bitmap, button);
    DeleteObject(bitmap);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
    const auto former =
        reinterpret_cast<HIMAGELIST>(SendMessageA(bar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images)));
    if (former != nullptr)
        ImageList_Destroy(former);
    for (int button = 0; button < buttonCount; ++button) {
        TBBUTTON made{};
        made.iBitmap = button;
        made.idCommand = button + 1;
        made.fsState = TBSTATE_ENABLED;
        SendMessageA(bar, TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&made));
    }
}

constexpr int editorButtons = 40;

HWND newHost() {
    return CreateWindowExA(0, "STATIC", "1 Board - C:\\work\\demo.brd - EAGLE 5.11.0 Light",
                           WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 800, 600, nullptr, nullptr, nullptr,
                           nullptr);
}

BOOL CALLBACK readTitle(HWND window, LPARAM wanted) {
    std::array<char, 256> title;
    GetWindowTextA(window, title.data(), static_cast<int>(title.size()));
    return std::strstr(title.data(), reinterpret_cast<const char*>(wanted)) == nullptr;
}

/// What a tick asks: each process, and the titles for each kind of editor.
void searchBare() {
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32First(snapshot, &entry); more != FALSE; more = Process32Next(snapshot, &entry))
        static_cast<void>(lstrcmpiA(entry.szExeFile, "eagle.exe"));
    CloseHandle(snapshot);
    for (const char* text : {"Board -", "Schematic -", "Schaltplan -", "Library -", "Bibliothek -"})
        EnumWindows(readTitle, reinterpret_cast<LPARAM>(text));
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
    for (int round = 0; round < count; ++round) {
        const HWND host = newHost();
        editor.form.setWindow();
        win32::servePending();
        DestroyWindow(host);
        win32::servePending();
    }
}

void newEditorsBare(int count) {
    FirstEditor editor;
    const HWND first = newHost();
    editor.form.setWindow();
    const BareDialog toolbar(reinterpret_cast<HWND>(editor.form.toolbarsBRD.back()->window()));
    const BareDialog calculator(reinterpret_cast<HWND>(editor.form.calculators.back()->fraMil.hWnd()));
    DestroyWindow(first);
    for (int round = 0; round < count; ++round) {
        const HWND host = newHost();
        searchBare();
        const HWND form = toolbar.open(host);
        fillBare(FindWindowExA(form, nullptr, TOOLBARCLASSNAMEA, nullptr), editorButtons);
        calculator.open(host);
        win32::servePending();
        DestroyWindow(host);
        win32::servePending();
    }
}

} // namespace bench
