// The system's control of a form's toolbar.
#pragma once

#include "contract/barForm.h"

#include <windows.h>

#include <commctrl.h>

#include <cstddef>

namespace contract {

inline HWND controlOf(forms::Toolbar& bar) {
    return reinterpret_cast<HWND>(bar.hWnd());
}

inline LRESULT ask(forms::Toolbar& bar, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageA(controlOf(bar), message, wParam, lParam);
}

/// Where the control has a button, in its client area; empty if it shows none.
inline RECT placeOf(forms::Toolbar& bar, std::size_t index) {
    RECT place{};
    ask(bar, TB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&place));
    return place;
}

} // namespace contract
