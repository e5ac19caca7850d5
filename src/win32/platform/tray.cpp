#include "win32/platform/tray.h"

#include "win32/common/native.h"

namespace win32 {

namespace {

/// The shell's window, as long as it has not answered; it can come back as another one.
HWND silent = nullptr;

void CALLBACK heard(HWND window, UINT /*message*/, ULONG_PTR /*own*/, LRESULT /*result*/) {
    if (window == silent)
        silent = nullptr;
}

bool shellAnswers() {
    const HWND shell = FindWindowA("Shell_TrayWnd", nullptr);
    // Without one the call fails at once by itself.
    if (shell == nullptr || (shell != silent && answers(shell)))
        return true;
    if (shell != silent && SendMessageCallbackA(shell, WM_NULL, 0, 0, heard, 0) != FALSE)
        silent = shell;
    return false;
}

} // namespace

bool notifyShell(DWORD message, NOTIFYICONDATAA& icon) {
    if (!shellAnswers())
        return false;
    if (Shell_NotifyIconA(message, &icon) != FALSE)
        return true;
    // The system has waited no longer, yet the shell may have done it: then the icon is there to be changed,
    // and to add it once more would be refused for ever.
    return message == NIM_ADD && shellAnswers() && Shell_NotifyIconA(NIM_MODIFY, &icon) != FALSE;
}

} // namespace win32
