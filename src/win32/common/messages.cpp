#include "win32/common/messages.h"

#include "win32/common/focusKeeper.h"

namespace win32 {

void serve(MSG& message) {
    (void)takeOwedKeyboard();
    if (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST && doneAsDialogKey(message))
        return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

void servePending() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        serve(message);
    }
}

} // namespace win32
