#include "win32/forms/modal.h"

#include "forms/menu.h"
#include "win32/forms/dialogKeys.h"
#include "win32/forms/windowPeer.h"

#include <algorithm>
#include <vector>

namespace win32 {

namespace {

struct Known {
    HWND window;
    const forms::Form* form;
};

struct Held {
    const forms::Form* modal; ///< none for a dialog of the system
    std::vector<HWND> windows;
};

/// All forms that have a window.
std::vector<Known>& known() {
    static std::vector<Known> all;
    return all;
}

std::vector<Held>& modalForms() {
    static std::vector<Held> all;
    return all;
}

void hold(Held& held, const Known& other) {
    // Hosted forms are held by isHeld.
    if (other.form == held.modal || !other.form->activates || IsWindowEnabled(other.window) == FALSE)
        return;
    EnableWindow(other.window, FALSE);
    held.windows.push_back(other.window);
}

void release(Held& held) {
    for (const HWND window : held.windows)
        if (WindowPeer::of(window) != nullptr)
            EnableWindow(window, TRUE);
    held.windows.clear();
}

/// A form that is made while another one is modal is held from the start, until it becomes modal itself.
void letGo(forms::Form& form) {
    const HWND window = native(form.hWnd());
    for (Held& held : modalForms())
        if (std::erase(held.windows, window) != 0)
            EnableWindow(window, TRUE);
}

void holdOthers(const forms::Form* modal) {
    modalForms().push_back({modal, {}});
    for (const Known& other : known())
        hold(modalForms().back(), other);
}

void releaseOthers() {
    release(modalForms().back());
    modalForms().pop_back();
}

/// Holds the program's other forms as long as a form is modal.
class Hold {
  public:
    explicit Hold(const forms::Form& form) { holdOthers(&form); }
    ~Hold() { releaseOthers(); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;
};

} // namespace

std::vector<HWND> formWindows() {
    std::vector<HWND> windows;
    for (const Known& form : known())
        windows.push_back(form.window);
    return windows;
}

void leaving(const forms::Form& form) {
    if (!modalForms().empty() && modalForms().back().modal == &form)
        release(modalForms().back());
    // Its loop may be waiting for a message: it is to see that the form has gone.
    PostThreadMessageA(GetCurrentThreadId(), WM_NULL, 0, 0);
}

bool isHeld(const forms::Form& form) {
    return !modalForms().empty() && modalForms().back().modal != &form;
}

HoldAll::HoldAll() {
    holdOthers(nullptr);
}

HoldAll::~HoldAll() {
    releaseOthers();
}

void windowMade(HWND window, const forms::Form& form) {
    known().push_back({window, &form});
    if (!modalForms().empty())
        hold(modalForms().back(), known().back());
}

void windowGone(HWND window) {
    std::erase_if(known(), [window](const Known& gone) { return gone.window == window; });
}

void serve(MSG& message) {
    if (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST)
        if (const HWND dialog = dialogOf(message.hwnd);
            dialog != nullptr &&
            (turnPage(dialog, message) || moveByTab(message) || IsDialogMessageA(dialog, &message)))
            return;
    TranslateMessage(&message);
    DispatchMessageA(&message);
}

void servePending() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        serve(message);
    }
}

} // namespace win32

namespace forms {

void runModal(Form& form) {
    const win32::Hold hold(form);
    win32::letGo(form);
    if (form.activates) {
        const HWND window = win32::native(form.hWnd());
        // Showing may have put it behind a window of another program.
        SetForegroundWindow(window);
        // As long as it was held it could not take the focus.
        if (IsChild(window, GetFocus()) == FALSE)
            win32::focusFirst(window);
    }
    MSG message;
    // It may go with its owner, without having been hidden.
    while (form.visible() && form.hWnd() != platform::HWND::none) {
        const BOOL got = GetMessageA(&message, nullptr, 0, 0);
        if (got == FALSE) { // the end of the program has been asked for: the outermost loop is to see it
            PostQuitMessage(static_cast<int>(message.wParam));
            form.hide();
            break;
        }
        if (got > 0)
            win32::serve(message);
    }
}

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
    POINT mouse{};
    GetCursorPos(&mouse);
    const HWND window = win32::native(owner.window());
    // Without these two the menu would not close on a click elsewhere.
    SetForegroundWindow(window);
    const BOOL chosen = TrackPopupMenu(shown, TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, mouse.x,
                                       mouse.y, 0, window, nullptr);
    PostMessageA(window, WM_NULL, 0, 0);
    DestroyMenu(shown);
    open = false;
    if (chosen > 0)
        menu.choose(menu.items[static_cast<std::size_t>(chosen) - firstId].index);
}

} // namespace forms
