// A modal form's own loop.
#include "forms/peer.h"

#include "win32/common/holding.h"
#include "win32/common/messages.h"
#include "win32/common/native.h"
#include "win32/common/windowChanges.h"
#include "win32/forms/dialogKeys.h"

namespace forms {

void runModal(Form& form) {
    // Its windows have been refused. There is nothing to wait for, and to give the focus to no window would
    // take it from whoever has it, also from a field of the host's, whose input is joined with ours.
    if (form.hWnd() == platform::HWND::none)
        return;
    const win32::Hold hold(form);
    if (form.activates) {
        const HWND window = win32::native(form.hWnd());
        // Showing may have put it behind a window of another program.
        win32::activateWindow(window);
        // As long as it was held it could not take the focus.
        if (IsChild(window, GetFocus()) == FALSE)
            win32::focusFirst(window);
    }
    MSG message;
    // It may go with its owner, without having been hidden.
    while (form.visible() && form.hWnd() != platform::HWND::none) {
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got == FALSE) { // the end of the program has been asked for: the outermost loop is to see it
            PostQuitMessage(static_cast<int>(message.wParam));
            form.hide();
            break;
        }
        if (got > 0)
            win32::serve(message);
    }
}

} // namespace forms
