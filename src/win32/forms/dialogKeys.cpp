#include "win32/forms/dialogKeys.h"

#include "forms/tabStrip.h"
#include "runtime/guard.h"
#include "win32/common/messages.h"
#include "win32/common/windowChanges.h"
#include "win32/forms/windowPeer.h"

namespace win32 {

namespace {

/// The first tab strip in a container, at any depth.
forms::TabStrip* findTabStrip(const forms::Container& container) {
    for (forms::Control* child : container.controls()) {
        if (child->kind() == forms::ControlKind::tabStrip)
            return static_cast<forms::TabStrip*>(child);
        if (child->kind() == forms::ControlKind::frame)
            if (forms::TabStrip* found = findTabStrip(static_cast<forms::Frame&>(*child)))
                return found;
    }
    return nullptr;
}

bool isTabStrip(HWND window) {
    const WindowPeer* peer = WindowPeer::of(window);
    return peer != nullptr && peer->control().kind() == forms::ControlKind::tabStrip;
}

/// The tab strip that the window stands in; null if it stands in none.
HWND stripAround(HWND window) {
    for (HWND seen = window; WindowPeer::of(seen) != nullptr; seen = GetAncestor(seen, GA_PARENT))
        if (isTabStrip(seen))
            return seen;
    return nullptr;
}

bool isTabKey(const MSG& message) {
    return message.message == WM_KEYDOWN && message.wParam == VK_TAB;
}

/// The next or previous stop of the Tab key. A tab strip is a stop in front of the first one on its page, so
/// that its arrow keys turn the pages; the system would see only what stands in it.
HWND nextStop(HWND dialog, HWND from, bool back) {
    if (isTabStrip(from)) {
        const HWND first = firstStop(from);
        const bool empty = first == nullptr || IsWindowVisible(first) == FALSE;
        return empty || back ? GetNextDlgTabItem(dialog, empty ? from : first, back ? TRUE : FALSE) : first;
    }
    const HWND next = GetNextDlgTabItem(dialog, from, back ? TRUE : FALSE);
    const HWND inside = back ? from : next;
    const HWND strip = stripAround(inside);
    // A label hands a mnemonic on to the field behind it: that is no way past the strip.
    const bool walks = (GetWindowLongA(from, GWL_STYLE) & WS_TABSTOP) != 0;
    return walks && strip != nullptr && inside == firstStop(strip) ? strip : next;
}

/// The Tab key, unless the control that it goes to wants it. False if the message is another one.
bool moveByTab(const MSG& message) {
    if (!isTabKey(message) || GetKeyState(VK_CONTROL) < 0)
        return false;
    const LRESULT wanted =
        SendMessageA(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
    if ((wanted & (DLGC_WANTTAB | DLGC_WANTMESSAGE)) != 0)
        return false;
    moveFocus(message.hwnd, GetKeyState(VK_SHIFT) < 0);
    return true;
}

/// F1, which the edit fields keep to themselves: help. Not in a form that stands in another program's window.
/// False if the message is another one.
bool askForHelp(HWND dialog, const MSG& message) {
    const bool modified = GetKeyState(VK_CONTROL) < 0 || GetKeyState(VK_SHIFT) < 0;
    if (message.message != WM_KEYDOWN || message.wParam != VK_F1 || modified)
        return false;
    WindowPeer* peer = WindowPeer::of(dialog);
    auto* form = peer == nullptr ? nullptr : dynamic_cast<forms::Form*>(&peer->control());
    if (form == nullptr || !form->activates)
        return false;
    runtime::guarded([form] { form->helpRequested(); });
    return true;
}

/// Ctrl+Tab and Ctrl+Shift+Tab turn the pages of the dialog's tab strip. False if the message is neither or
/// the dialog has no tab strip.
bool turnPage(HWND dialog, const MSG& message) {
    if (!isTabKey(message) || GetKeyState(VK_CONTROL) >= 0)
        return false;
    const WindowPeer* peer = WindowPeer::of(dialog);
    const auto* container =
        peer == nullptr ? nullptr : dynamic_cast<const forms::Container*>(&peer->control());
    forms::TabStrip* tabs = container == nullptr ? nullptr : findTabStrip(*container);
    if (tabs == nullptr || tabs->tabs() == 0 || !tabs->acceptsInput())
        return false;
    const int step = GetKeyState(VK_SHIFT) < 0 ? tabs->tabs() - 1 : 1;
    runtime::guarded([tabs, step] { tabs->selected((tabs->tab() + step) % tabs->tabs()); });
    return true;
}

} // namespace

HWND dialogOf(HWND window) {
    HWND outermost = nullptr;
    for (HWND seen = window; seen != nullptr && WindowPeer::of(seen) != nullptr;
         seen = GetAncestor(seen, GA_PARENT))
        outermost = seen;
    return outermost;
}

void moveFocus(HWND from, bool back) {
    const HWND dialog = dialogOf(from);
    const HWND next = dialog == nullptr ? nullptr : nextStop(dialog, from, back);
    if (next == nullptr)
        return;
    if ((SendMessageA(next, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0)
        SendMessageA(next, EM_SETSEL, 0, -1);
    // The user is at the keyboard: where the focus is, is marked from now on. Told downwards from the dialog,
    // since the way up may lead to a host that does not answer.
    SendMessageA(dialog, WM_UPDATEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
    focusWindow(next);
}

HWND firstStop(HWND container) {
    const WindowPeer* peer = WindowPeer::of(container);
    if (peer != nullptr && peer->control().kind() == forms::ControlKind::form) {
        forms::Control* named = static_cast<const forms::Form&>(peer->control()).firstFocus;
        if (named != nullptr && named->visible() && named->acceptsInput())
            return native(named->hWnd());
    }
    return GetNextDlgTabItem(container, nullptr, FALSE);
}

void focusFirst(HWND container) {
    const HWND first = firstStop(container);
    // With none to stop at, one that is hidden may be named.
    focusWindow(first == nullptr || IsWindowVisible(first) == FALSE ? container : first);
}

bool doneAsDialogKey(MSG& message) {
    const HWND dialog = dialogOf(message.hwnd);
    return dialog != nullptr && (askForHelp(dialog, message) || turnPage(dialog, message) ||
                                 moveByTab(message) || IsDialogMessageW(dialog, &message) != FALSE);
}

} // namespace win32
