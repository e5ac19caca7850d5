// A menu that pops up at the mouse.
#include "forms/peer.h"

#include "forms/form.h"
#include "forms/menu.h"
#include "win32/common/focusKeeper.h"
#include "win32/common/native.h"
#include "win32/common/views.h"
#include "win32/common/windowChanges.h"

namespace forms {

void popUp(Form& owner, Menu& menu) {
    static bool open = false;
    if (open)
        return;
    open = true;
    const HMENU shown = CreatePopupMenu();
    constexpr UINT_PTR firstId = 1; // 0 is "nothing chosen"
    for (std::size_t place = 0; place < menu.items.size(); ++place) {
        const MenuItem& item = menu.items[place];
        if (!item.visible)
            continue;
        const UINT style = item.caption == "-" ? MF_SEPARATOR : MF_STRING | (item.enabled ? 0U : MF_GRAYED);
        AppendMenuA(shown, style, firstId + place, item.caption.c_str());
    }
    const win32::Seeing seen(win32::ownView());
    POINT mouse{};
    GetCursorPos(&mouse);
    const HWND window = win32::native(owner.window());
    win32::FocusKeeper keeper;
    // Without these two the menu would not close on a click elsewhere.
    win32::activateWindow(window);
    const BOOL chosen = TrackPopupMenu(shown, TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, mouse.x,
                                       mouse.y, 0, window, nullptr);
    PostMessageA(window, WM_NULL, 0, 0);
    DestroyMenu(shown);
    open = false;
    if (chosen > 0)
        menu.choose(menu.items[static_cast<std::size_t>(chosen) - firstId].index);
    // Given back only now: what the entry has started or shown may come in front because we are. It may have
    // done so, or the user may have clicked elsewhere.
    if (const HWND front = GetForegroundWindow(); front != window && IsWindowVisible(front) != FALSE)
        keeper.dismiss();
}

} // namespace forms
