// The tips of controls: one window of the system's shows those of many.
#pragma once

#include "forms/control.h"
#include "win32/common/native.h"

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <string>

namespace contract {

/// What a tip window knows of a control.
class Tip {
  public:
    explicit Tip(forms::Control& control) : control_(win32::native(control.hWnd())) {
        EnumThreadWindows(GetCurrentThreadId(), look, reinterpret_cast<LPARAM>(this));
    }

    /// That shows the control's tip; null if none does.
    HWND window() const { return found_; }
    /// Empty if there is none.
    std::string text() const {
        std::array<char, 256> text{};
        TTTOOLINFOA tool = asked();
        tool.lpszText = text.data();
        if (found_ != nullptr)
            SendMessageA(found_, TTM_GETTEXTA, text.size(), reinterpret_cast<LPARAM>(&tool));
        return text.data();
    }

  private:
    TTTOOLINFOA asked() const {
        TTTOOLINFOA tool{};
        tool.cbSize = TTTOOLINFOA_V2_SIZE;
        tool.hwnd = control_;
        tool.uId = reinterpret_cast<UINT_PTR>(control_);
        return tool;
    }

    static BOOL CALLBACK look(HWND window, LPARAM parameter) {
        auto& self = *reinterpret_cast<Tip*>(parameter);
        std::array<char, 32> name{};
        GetClassNameA(window, name.data(), static_cast<int>(name.size()));
        TTTOOLINFOA tool = self.asked();
        if (lstrcmpiA(name.data(), TOOLTIPS_CLASSA) == 0 &&
            SendMessageA(window, TTM_GETTOOLINFOA, 0, reinterpret_cast<LPARAM>(&tool)) != 0)
            self.found_ = window;
        return TRUE;
    }

    HWND control_;
    HWND found_ = nullptr;
};

/// The mouse comes over a control.
inline void pointAt(forms::Control& control) {
    SendMessageA(win32::native(control.hWnd()), WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
}

} // namespace contract
