// The work that is measured under Wine, each beside a bare counterpart that makes the same platform calls.
// The measuring itself, CPU time of this process and of the server, is done from outside (bench/run.py).
//
//   win-bench windows N        opens N top-level windows and waits to be ended
//   win-bench tick N           N ticks of the tracker
//   win-bench tick-bare N      N times the platform calls of a tick
//   win-bench load N           N times loadVarBar with 100 buttons that have icons
//   win-bench load-bare N      N times the icon extraction and the toolbar calls for 100 buttons
//   win-bench setup-open N     opens and cancels the setup dialog N times, with three lists of 200 buttons
//   win-bench setup-ok N       the same with OK
//   win-bench setup-ok-bare N  N times the settings calls of such an OK
//   win-bench idle             the platform calls of a tick five times a second, until ended
#include "setupBench.h"

#include "core/hauptform.h"
#include "platform/executable.h"
#include "platform/kernel32.h"
#include "platform/shell32.h"
#include "platform/user32.h"
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

constexpr int buttonCount = 100;
constexpr int side = 16;

std::string iconFile(int button) {
    static const std::array<const char*, 3> files = {"brd.ico", "sch.ico", "lbr.ico"};
    return platform::programFolder() + "\\" + files[static_cast<std::size_t>(button) % files.size()];
}

void openWindows(int count) {
    for (int window = 0; window < count; ++window)
        CreateWindowExA(0, "STATIC",
                        ("A window of another program, number " + std::to_string(window)).c_str(),
                        WS_OVERLAPPEDWINDOW, 10, 10, 200, 100, nullptr, nullptr, nullptr, nullptr);
    std::puts("ready");
    std::fflush(stdout);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
}

int readTitle(platform::HWND window, std::intptr_t /*extra*/) {
    std::array<char, 256> title;
    platform::GetWindowTextA(window, title.data(), static_cast<int>(title.size()));
    return 1;
}

void bareTick() {
    const platform::HANDLE snapshot = platform::CreateToolhelp32Snapshot(2, 0);
    platform::PROCESSENTRY32 entry;
    entry.dwSize = platform::processRecordSize;
    for (bool more = platform::Process32First(snapshot, entry); more;
         more = platform::Process32Next(snapshot, entry)) {
    }
    std::array<char, 255> value;
    const std::string file = platform::programFolder() + "\\kestrel.ini";
    platform::GetPrivateProfileStringA("toolbar", "autoToolbar", "", value.data(),
                                       static_cast<std::uint32_t>(value.size()), file.c_str());
    constexpr int searches = 5; // one text for boards, two each for schematics and libraries
    for (int search = 0; search < searches; ++search)
        platform::EnumWindows(readTitle, 0);
}

void ticks(int count) {
    core::Hauptform form;
    for (int tick = 0; tick < count; ++tick)
        form.setWindow();
}

void idle() {
    MSG message;
    SetTimer(nullptr, 0, 200, nullptr);
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        if (message.message == WM_TIMER)
            bareTick();
}

void fillList() {
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

void load(int count) {
    fillList();
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

void loadBare(int count) {
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
    if (what == "windows")
        openWindows(number);
    else if (what == "tick")
        ticks(number);
    else if (what == "tick-bare")
        for (int tick = 0; tick < number; ++tick)
            bareTick();
    else if (what == "load")
        load(number);
    else if (what == "load-bare")
        loadBare(number);
    else if (what == "setup-open")
        bench::openSetup(number);
    else if (what == "setup-ok")
        bench::okSetup(number);
    else if (what == "setup-ok-bare")
        bench::okBare(number);
    else if (what == "idle")
        idle();
    else
        return 1;
    return 0;
}
