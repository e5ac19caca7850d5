#include "win32/forms/containerPeer.h"

#include "win32/common/windowChanges.h"
#include "win32/forms/dialogKeys.h"

namespace win32 {

ContainerPeer::~ContainerPeer() {
    if (brush_ != nullptr)
        DeleteObject(brush_);
}

void ContainerPeer::changed(forms::Property property) {
    WindowPeer::changed(property);
    if (property == forms::Property::colours && handle() != nullptr)
        RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

std::optional<COLORREF> ContainerPeer::background() const {
    if (control().backColour())
        return nativeColour(*control().backColour());
    const ContainerPeer* around = containerPeer();
    return around == nullptr ? std::nullopt : around->background();
}

bool ContainerPeer::hasOwnBackground() const {
    const ContainerPeer* around = containerPeer();
    return control().backColour() || (around != nullptr && around->hasOwnBackground());
}

LRESULT ContainerPeer::message(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        if (WindowPeer* child = of(reinterpret_cast<HWND>(lParam))) {
            const std::shared_ptr<Peer> kept = child->weak_from_this().lock(); // its window may go meanwhile
            child->command(HIWORD(wParam), LOWORD(wParam));
            return 0;
        }
        break;
    case WM_NOTIFY: {
        auto& header = *reinterpret_cast<NMHDR*>(lParam);
        if (WindowPeer* child = of(header.hwndFrom)) {
            const std::shared_ptr<Peer> kept = child->weak_from_this().lock();
            return child->notify(header);
        }
        break;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
        if (const LRESULT brush = childColour(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
            brush != 0)
            return brush;
        break;
    case WM_ERASEBKGND:
        if (const std::optional<COLORREF> colour = background()) {
            RECT client;
            GetClientRect(handle(), &client);
            const HBRUSH fill = CreateSolidBrush(*colour);
            FillRect(reinterpret_cast<HDC>(wParam), &client, fill);
            DeleteObject(fill);
            return 1;
        }
        break;
    case WM_SYSCOLORCHANGE: // the system tells top-level windows, and these their controls
        for (forms::Control* child : static_cast<const forms::Container&>(control()).controls())
            if (const HWND window = native(child->hWnd()); window != nullptr)
                SendMessageA(window, message, wParam, lParam);
        break;
    case WM_NEXTDLGCTL: // a mnemonic asks for it
        if (LOWORD(lParam) != 0)
            focusWindow(reinterpret_cast<HWND>(wParam));
        else
            moveFocus(GetFocus(), wParam != 0);
        return 0;
    default:
        break;
    }
    return defaultMessage(message, wParam, lParam);
}

/// Colours of a child that has its own, or that shows what it stands on. 0 leaves the system's.
LRESULT ContainerPeer::childColour(HDC dc, HWND child) {
    const WindowPeer* peer = of(child);
    if (peer == nullptr)
        return 0;
    const forms::Control& shown = peer->control();
    const forms::ControlKind kind = shown.kind();
    const bool hasPaper = kind == forms::ControlKind::textBox || kind == forms::ControlKind::listBox ||
                          kind == forms::ControlKind::comboBox;
    const bool own = shown.backColour() || (!hasPaper && hasOwnBackground());
    const COLORREF text = textColour(shown, own);
    std::optional<COLORREF> wanted;
    if (shown.backColour())
        wanted = nativeColour(*shown.backColour());
    else if (!hasPaper)
        wanted = background();
    // A colour for the text alone would be lost with the system's answer.
    if (!wanted && text != GetSysColor(COLOR_WINDOWTEXT))
        wanted = GetSysColor(hasPaper ? COLOR_WINDOW : COLOR_BTNFACE);
    if (!wanted)
        return 0;
    if (brush_ == nullptr || brushColour_ != *wanted) {
        if (brush_ != nullptr)
            DeleteObject(brush_);
        brushColour_ = *wanted;
        brush_ = CreateSolidBrush(*wanted);
    }
    SetTextColor(dc, text);
    SetBkColor(dc, *wanted);
    return reinterpret_cast<LRESULT>(brush_);
}

} // namespace win32
