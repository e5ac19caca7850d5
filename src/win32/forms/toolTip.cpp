#include "win32/forms/toolTip.h"

#include "win32/common/views.h"

#include <commctrl.h>

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

} // namespace

void setToolTip(HWND window, const std::string& text) {
    TTTOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = window;
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    for (const auto& [view, tips] : tipWindows())
        SendMessageA(tips, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    if (text.empty())
        return;
    std::string shown = text; // the record wants a text that may be written to
    tool.lpszText = shown.data();
    SendMessageA(tipWindow(viewOf(window)), TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

} // namespace win32
