#include "check/notice.h"
#include "check/hands.h"
#include "check/screens.h"
#include "check/waiting.h"

static constexpr wchar_t className[] = L"CheckNotice";
static constexpr wchar_t text[] =
    L"This check uses mouse and keyboard. Please leave both alone; any key stops it.\n"
    L"Diese Pr\u00FCfung benutzt Maus und Tastatur. Bitte beide ruhen lassen; jede Taste bricht ab.\n";
// No title: programs look for others by theirs.
static std::wstring now; // the last line, of the window's thread alone

static constexpr UINT sayMessage = WM_APP;
static constexpr UINT endMessage = WM_APP + 1;
static constexpr int width = 640; // at 96 dpi
static constexpr int height = 72;

// A key that was down before the check began is let go some time.
static LRESULT CALLBACK keyboard(int code, WPARAM message, LPARAM data) {
    const auto& key = *reinterpret_cast<const KBDLLHOOKSTRUCT*>(data);
    if (code == HC_ACTION && (key.flags & LLKHF_INJECTED) == 0 &&
        (message == WM_KEYDOWN || message == WM_SYSKEYDOWN))
        waiting::stop();
    return CallNextHookEx(nullptr, code, message, data);
}

static void paint(HWND window) {
    const std::wstring words = text + now;
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(window, &paint);
    RECT area;
    GetClientRect(window, &area);
    FillRect(dc, &area, GetSysColorBrush(COLOR_INFOBK));
    FrameRect(dc, &area, GetSysColorBrush(COLOR_WINDOWFRAME));
    InflateRect(&area, -6, -6);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_INFOTEXT));
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const HFONT font = CreateFontIndirectW(&metrics.lfMessageFont);
    const HGDIOBJ before = SelectObject(dc, font);
    DrawTextW(dc, words.c_str(), -1, &area, DT_NOPREFIX | DT_WORDBREAK);
    SelectObject(dc, before);
    DeleteObject(font);
    EndPaint(window, &paint);
}

static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        paint(window);
        return 0;
    case sayMessage:
        now = reinterpret_cast<const wchar_t*>(lParam);
        InvalidateRect(window, nullptr, TRUE);
        return 0;
    case endMessage:
        DestroyWindow(window);
        return 0;
    case WM_CLOSE:
        waiting::stop();
        return 0;
    case WM_QUERYENDSESSION:
        waiting::stop();
        return TRUE;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

Notice::Notice() {
    const HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    thread_ = std::thread(&Notice::run, this, ready);
    WaitForSingleObject(ready, INFINITE);
    CloseHandle(ready);
    if (!window_) {
        thread_.join();
        throw waiting::Failure("the keys cannot be heard, so that nothing could stop the check");
    }
}

Notice::~Notice() {
    PostMessageW(window_, endMessage, 0, 0);
    thread_.join();
}

void Notice::run(HANDLE ready) {
    WNDCLASSW description = {};
    description.lpfnWndProc = procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = className;
    RegisterClassW(&description);
    const screens::Screen screen = screens::primary();
    const int wide = MulDiv(width, screen.dpi, 96);
    const int high = MulDiv(height, screen.dpi, 96);
    const HWND window = CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, className, L"", WS_POPUP,
                                        screen.work.right - wide - 8, screen.work.bottom - high - 8, wide,
                                        high, nullptr, nullptr, description.hInstance, nullptr);
    const HHOOK hook = SetWindowsHookExW(WH_KEYBOARD_LL, keyboard, description.hInstance, 0);
    if (hook)
        window_ = window;
    ShowWindow(window, SW_SHOWNOACTIVATE);
    SetEvent(ready);
    MSG message;
    while (hook && GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    UnhookWindowsHookEx(hook);
}

void Notice::say(const std::wstring& line) {
    SendMessageW(window_, sayMessage, 0, reinterpret_cast<LPARAM>(line.c_str()));
}

void Notice::comeToFront() {
    RECT place;
    GetWindowRect(window_, &place);
    if (hands::reach(window_, place))
        hands::click(window_, place);
}
