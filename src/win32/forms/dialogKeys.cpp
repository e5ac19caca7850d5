#include "win32/forms/dialogKeys.h"

#include "core/guard.h"
#include "forms/tabStrip.h"
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
    const HWND next = dialog == nullptr ? nullptr : GetNextDlgTabItem(dialog, from, back ? TRUE : FALSE);
    if (next == nullptr)
        return;
    if ((SendMessageA(next, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0)
        SendMessageA(next, EM_SETSEL, 0, -1);
    SetFocus(next);
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
    SetFocus(first == nullptr || IsWindowVisible(first) == FALSE ? container : first);
}

bool turnPage(HWND dialog, const MSG& message) {
    if (message.message != WM_KEYDOWN || message.wParam != VK_TAB || GetKeyState(VK_CONTROL) >= 0)
        return false;
    const WindowPeer* peer = WindowPeer::of(dialog);
    const auto* container =
        peer == nullptr ? nullptr : dynamic_cast<const forms::Container*>(&peer->control());
    forms::TabStrip* tabs = container == nullptr ? nullptr : findTabStrip(*container);
    if (tabs == nullptr || tabs->tabs() == 0 || !tabs->acceptsInput())
        return false;
    const int step = GetKeyState(VK_SHIFT) < 0 ? tabs->tabs() - 1 : 1;
    core::guarded([tabs, step] { tabs->selected((tabs->tab() + step) % tabs->tabs()); });
    return true;
}

} // namespace win32
