#include "win32/common/windowChanges.h"

#include "win32/common/focusKeeper.h"
#include "win32/common/joinedHosts.h"
#include "win32/common/native.h"
#include "win32/common/refusal.h"

namespace win32 {

namespace {

void changeStyle(HWND window, DWORD clear, DWORD set) {
    const auto style = static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
    SetWindowLongA(window, GWL_STYLE, static_cast<LONG>((style & ~clear) | set));
}

/// Whether the focus moves among our own windows in a window that is active: no other one hears of that.
bool staysAmongOurs(HWND window) {
    const HWND focus = GetFocus();
    const HWND root = GetAncestor(window, GA_ROOT);
    return focus != nullptr && !isForeign(focus) && GetAncestor(focus, GA_ROOT) == root &&
           GetActiveWindow() == root;
}

/// Before a window of ours comes or goes. A control that does not have the focus does so among our own
/// windows alone.
void prepare(HWND window) {
    const bool isControl = (GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0;
    const HWND focus = GetFocus();
    if (!isControl || (focus != nullptr && (focus == window || IsChild(window, focus) != FALSE)))
        partFromSilentHosts();
}

} // namespace

void activateWindow(HWND window) {
    partFromSilentHosts();
    joinAgain(window);
    SetForegroundWindow(window);
}

void focusWindow(HWND window) {
    if (window == nullptr || !staysAmongOurs(window)) {
        partFromSilentHosts();
        joinAgain(window);
    }
    SetFocus(window);
}

bool raiseWindow(HWND window) {
    if (!isForeign(window)) {
        partFromSilentHosts();
        return BringWindowToTop(window) != FALSE;
    }
    if (IsWindow(window) == FALSE)
        return false;
    // The click that brought us here gives us the right to choose the window in front.
    if (windowAnswers(window))
        activateWindow(window);
    else {
        oweKeyboard(window);
        partFromSilentHosts();
    }
    return SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_ASYNCWINDOWPOS) != FALSE;
}

bool orderWindow(HWND window, HWND after, const RECT& place, UINT flags) {
    if (isForeign(window)) {
        partFromSilentHosts();
        flags |= SWP_ASYNCWINDOWPOS;
    } else if (IsWindowVisible(window) == FALSE)
        flags |= SWP_NOACTIVATE;
    else
        prepare(window);
    return SetWindowPos(window, after, place.left, place.top, place.right - place.left,
                        place.bottom - place.top, flags) != FALSE;
}

bool showWindow(HWND window, int command) {
    if (keptFromSight(window, command != SW_HIDE))
        return false;
    if (isForeign(window))
        return ShowWindowAsync(window, command) != FALSE;
    prepare(window);
    return ShowWindow(window, command) != FALSE;
}

void showInPlace(HWND window) {
    if (keptFromSight(window, true))
        return;
    prepare(window);
    SetWindowPos(window, nullptr, 0, 0, 0, 0,
                 SWP_SHOWWINDOW | SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER);
}

bool moveWindow(HWND window, const RECT& place, UINT more) {
    return SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left,
                        place.bottom - place.top,
                        SWP_NOZORDER | SWP_NOACTIVATE | SWP_DEFERERASE | more) != FALSE;
}

HWND putInto(HWND window, HWND parent) {
    if (window == nullptr) // it could not be made, or has gone
        return nullptr;
    const auto before = static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
    const HWND present = GetAncestor(window, GA_PARENT);
    if (parent == nullptr ? (before & WS_CHILD) == 0 : present == parent)
        return present;
    partFromSilentHosts();
    // The styles must fit before the window goes in and after it has come out.
    if (parent == nullptr) {
        const HWND former = SetParent(window, nullptr);
        hostLeft(former);
        changeStyle(window, WS_CHILD, WS_POPUP);
        return former;
    }
    changeStyle(window, WS_POPUP, WS_CHILD);
    const HWND former = SetParent(window, parent);
    // The host may have died before or behind the call, so the window is asked.
    if (GetAncestor(window, GA_PARENT) == parent) {
        hostLeft(former);
        hostJoined(parent);
        letBeSeen(window);
        return former;
    }
    constexpr DWORD kinds = WS_POPUP | WS_CHILD;
    changeStyle(window, kinds, before & kinds);
    keepFromSight(window, parent);
    return nullptr;
}

void destroyWindow(HWND window) {
    prepare(window);
    DestroyWindow(window);
}

} // namespace win32
