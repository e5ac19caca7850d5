// Windows of the program in a host, and a dialog beside them.
#pragma once

#include "contract/toolForm.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/textBox.h"
#include "platform/user32.h"
#include "win32/common/native.h"

#include <windows.h>

namespace contract {

/// What a toolbar and a calculator put into a host.
class Guest : public ToolForm {
  public:
    explicit Guest(platform::HWND host) {
        frame.border = false;
        frame.place(*this, {0, 0, 1500, 270});
        field.place(frame, {0, 0, 900, 285});
        show();
        platform::SetParent(hWnd(), host);
        platform::SetParent(frame.hWnd(), host);
    }
    forms::Frame frame;
    forms::TextBox field;
};

class Dialog : public forms::Form {
  public:
    Dialog() {
        borderStyle = forms::BorderStyle::fixedDialog;
        showInTaskbar = false;
        setCaption("dialog");
        setClientSize(3000, 900);
        field.place(*this, {150, 150, 1500, 285});
    }
    forms::TextBox field;
};

inline bool joined(HWND host) {
    // Under Wine the input of two threads is one object, and parting fails when it is not.
    const DWORD thread = GetWindowThreadProcessId(host, nullptr);
    if (AttachThreadInput(GetCurrentThreadId(), thread, FALSE) == FALSE)
        return false;
    AttachThreadInput(GetCurrentThreadId(), thread, TRUE);
    return true;
}

inline bool joined(platform::HWND host) {
    return joined(win32::native(host));
}

} // namespace contract
