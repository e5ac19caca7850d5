// The work that is measured under Wine, each beside a bare counterpart that makes the same platform calls.
// The measuring itself, CPU time of this process and of the server, is done from outside (bench/run.py).
//
//   win-bench windows N             opens N top-level windows and waits to be ended
//   win-bench load N [BUTTONS]      N times loadVarBar with buttons that have icons
//   win-bench load-bare N [BUTTONS] N times the icon extraction and the toolbar calls for them
//   win-bench setup-open N [ROWS]   opens and cancels the setup N times, with three lists of so many rows
//   win-bench setup-open-bare N [ROWS]
//                                   opens and closes a dialog with the same controls and rows N times
//   win-bench setup-ok N [ROWS]     opens the setup and presses OK N times
//   win-bench setup-ok-bare N [ROWS]
//                                   makes the settings calls of such an OK N times
#include "otherWindows.h"
#include "setupBench.h"

#include "platform/executable.h"
#include "platform/shell32.h"
#include "store/buttonLists.h"
#include "store/settings.h"
#include "toolbars/frmToolbar.h"
#include "win32/common/messages.h"

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

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
        const auto former = reinterpret_cast<HIMAGELIST>(
            SendMessageA(bar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images)));
        if (former != nullptr)
            ImageList_Destroy(former);
        for (int button = 0; button < buttonCount; ++button) {
            TBBUTTON made{};
            made.iBitmap = button;
            made.idCommand = button + 1;
            made.fsState = TBSTATE_ENABLED;
            SendMessageA(bar, TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&made));
        }
        win32::servePending();
    }
}

} // namespace

int main(int count, char** arguments) {
    const std::string_view what = count > 1 ? arguments[1] : "";
    const int number = count > 2 ? std::atoi(arguments[2]) : 0; // a number of rounds
    const int size = count > 3 ? std::atoi(arguments[3]) : 0;
    const int rows = size > 0 ? size : 200;
    if (what == "windows")
        return bench::openWindows(number);
    if (what == "load")
        load(number, size > 0 ? size : 100);
    else if (what == "load-bare")
        loadBare(number, size > 0 ? size : 100);
    else if (what == "setup-open")
        bench::openSetup(number, rows);
    else if (what == "setup-open-bare")
        bench::openBare(number, rows);
    else if (what == "setup-ok")
        bench::okSetup(number, rows);
    else if (what == "setup-ok-bare")
        bench::okBare(number, rows);
    else
        return 1;
    return 0;
}
