#include "win32/forms/hosted.h"

#include "win32/common/holding.h"
#include "win32/common/joinedHosts.h"
#include "win32/forms/windowPeer.h"

namespace win32 {

namespace {

bool isChild(HWND window) {
    return (GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0;
}

/// Whether the host's own window is the next one around this one.
bool touchesHost(HWND window) {
    return isChild(window) && isForeign(GetAncestor(window, GA_PARENT));
}

/// The pointer over a place of a window, by the code of the hit test.
HCURSOR cursorOver(int place) {
    const auto* name = IDC_ARROW;
    switch (place) {
    case HTLEFT:
    case HTRIGHT:
        name = IDC_SIZEWE;
        break;
    case HTTOP:
    case HTBOTTOM:
        name = IDC_SIZENS;
        break;
    case HTTOPLEFT:
    case HTBOTTOMRIGHT:
        name = IDC_SIZENWSE;
        break;
    case HTTOPRIGHT:
    case HTBOTTOMLEFT:
        name = IDC_SIZENESW;
        break;
    default:
        break;
    }
    return LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(name));
}

} // namespace

bool isHosted(HWND window) {
    return isChild(window) && isForeign(GetAncestor(window, GA_ROOT));
}

bool answerAsHosted(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    result = 0;
    switch (message) {
    case WM_SETCURSOR:
        if (!touchesHost(window))
            return false;
        // A control's own pointer is its own affair.
        if (reinterpret_cast<HWND>(wParam) == window) {
            SetCursor(cursorOver(static_cast<short>(LOWORD(lParam))));
            result = TRUE;
        }
        return true;
    case WM_MOUSEACTIVATE: {
        if (!touchesHost(window))
            return false;
        const WindowPeer* peer = WindowPeer::of(window);
        const forms::Form* form = peer == nullptr ? nullptr : peer->control().form();
        // A click gives the focus to a field of ours, and that waits for the window that has it now.
        if (form != nullptr && isHeld(*form))
            result = MA_NOACTIVATEANDEAT;
        else
            result = readyForClick(window) ? MA_ACTIVATE : MA_NOACTIVATE;
        return true;
    }
    case WM_CONTEXTMENU:
    case WM_APPCOMMAND:
    case WM_HELP:
    case WM_CHANGEUISTATE:
        return touchesHost(window);
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
        if (!touchesHost(window))
            return false;
        PostMessageA(GetAncestor(window, GA_PARENT), message, wParam, lParam);
        return true;
    case WM_SYSKEYDOWN:
    case WM_SYSKEYUP:
        // The host's menu: it makes the character out of the key by itself.
        if (!isHosted(window))
            return false;
        PostMessageA(GetAncestor(window, GA_ROOT), message, wParam, lParam);
        return true;
    case WM_SYSCHAR:
        return isHosted(window);
    default:
        return false;
    }
}

} // namespace win32
