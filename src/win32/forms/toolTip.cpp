#include "win32/forms/toolTip.h"

#include <commctrl.h>

namespace win32 {

namespace {

/// One window shows all tips. It has no owner: controls that stand in another program's window have tips as
/// well.
HWND tipWindow(bool make) {
    static HWND window = nullptr;
    if (window == nullptr && make)
        window =
            CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                            GetModuleHandleA(nullptr), nullptr);
    return window;
}

} // namespace

void setToolTip(HWND window, const std::string& text) {
    const HWND tips = tipWindow(!text.empty());
    if (tips == nullptr)
        return;
    TTTOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = window;
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    SendMessageA(tips, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    if (text.empty())
        return;
    std::string shown = text; // the record wants a text that may be written to
    tool.lpszText = shown.data();
    SendMessageA(tips, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

} // namespace win32
