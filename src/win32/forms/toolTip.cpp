#include "win32/forms/toolTip.h"

#include "win32/common/views.h"

#include <commctrl.h>
#include <windowsx.h>

#include <map>

namespace win32 {

namespace {

/// One window shows all tips of a view: it finds its place beside controls that see the screen as it does. It
/// has no owner: controls that stand in another program's window have tips as well.
std::map<View, HWND>& tipWindows() {
    static std::map<View, HWND> all;
    return all;
}

HWND tipWindow(View view) {
    HWND& window = tipWindows()[view];
    if (window == nullptr) {
        const Seeing seen(view);
        window =
            CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                            GetModuleHandleA(nullptr), nullptr);
    }
    return window;
}

TTTOOLINFOA toolOf(HWND window) {
    TTTOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V2_SIZE;
    tool.uFlags = TTF_IDISHWND;
    tool.hwnd = window;
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    return tool;
}

} // namespace

void ToolTip::hear(HWND window, const std::string& text, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message < WM_MOUSEFIRST || message > WM_MBUTTONDBLCLK || (text.empty() && !made_))
        return;
    if (!made_) {
        made_ = true;
        change(window, text);
    }
    MSG heard{window, message, wParam, lParam, static_cast<DWORD>(GetMessageTime()), {}};
    const DWORD place = GetMessagePos();
    heard.pt = {GET_X_LPARAM(place), GET_Y_LPARAM(place)};
    SendMessageA(tipWindow(viewOf(window)), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&heard));
}

void ToolTip::change(HWND window, const std::string& text) {
    if (!made_)
        return;
    TTTOOLINFOA tool = toolOf(window);
    for (const auto& [view, tips] : tipWindows())
        SendMessageA(tips, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    made_ = !text.empty();
    if (!made_)
        return;
    std::string shown = text; // the record wants a text that may be written to
    tool.lpszText = shown.data();
    SendMessageA(tipWindow(viewOf(window)), TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

} // namespace win32
