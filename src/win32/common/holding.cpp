#include "win32/common/holding.h"

#include "win32/common/joinedHosts.h"
#include "win32/common/native.h"
#include "win32/common/ownerWindow.h"

#include <algorithm>
#include <utility>

namespace win32 {

namespace {

struct Known {
    HWND window;
    const forms::Form* form;
};

struct Held {
    const forms::Form* modal; ///< none for a dialog of the system
    HWND owner;               ///< of a dialog of the system: a form's window, or one that holds it
    std::vector<HWND> windows;
};

/// All forms that have a window.
std::vector<Known>& known() {
    static std::vector<Known> all;
    return all;
}

/// The innermost comes last.
std::vector<Held>& holders() {
    static std::vector<Held> all;
    return all;
}

void hold(Held& held, const Known& other) {
    // Nobody clicks on the hidden window, and it owns dialogs that may come up whatever is held already.
    if (other.form == held.modal || other.window == held.owner || other.window == ownerWindow())
        return;
    // Hosted forms are held by isHeld.
    if (!other.form->activates || IsWindowEnabled(other.window) == FALSE)
        return;
    EnableWindow(other.window, FALSE);
    held.windows.push_back(other.window);
}

void release(Held& held) {
    for (const HWND window : held.windows)
        // It may have gone meanwhile.
        if (!isForeign(window))
            EnableWindow(window, TRUE);
    held.windows.clear();
}

void holdOthers(const forms::Form* modal, HWND owner) {
    Held held{modal, owner, {}};
    // What fails, fails before a window is disabled that nobody would enable.
    held.windows.reserve(known().size());
    holders().push_back(std::move(held));
    for (const Known& other : known())
        hold(holders().back(), other);
}

} // namespace

void windowMade(HWND window, const forms::Form& form) {
    known().push_back({window, &form});
    if (!holders().empty())
        hold(holders().back(), known().back());
}

void windowGone(HWND window) {
    std::erase_if(known(), [window](const Known& gone) { return gone.window == window; });
}

std::vector<HWND> formWindows() {
    std::vector<HWND> windows;
    for (const Known& form : known())
        windows.push_back(form.window);
    return windows;
}

void leaving(const forms::Form& form) {
    if (!holders().empty() && holders().back().modal == &form)
        release(holders().back());
    // Its loop may be waiting for a message: it is to see that the form has gone.
    PostThreadMessageA(GetCurrentThreadId(), WM_NULL, 0, 0);
}

bool isHeld(const forms::Form& form) {
    return !holders().empty() && holders().back().modal != &form;
}

HWND modalWindow() {
    if (holders().empty() || holders().back().modal == nullptr)
        return nullptr;
    const auto modal = std::ranges::find(known(), holders().back().modal, &Known::form);
    if (modal == known().end())
        return nullptr;
    const HWND window = modal->window;
    return IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE ? window : nullptr;
}

Hold::Hold(HWND owner) {
    partFromSilentHosts(); // the dialog comes up by itself
    holdOthers(nullptr, owner == nullptr ? nullptr : GetAncestor(owner, GA_ROOT));
}

Hold::Hold(forms::Form& form) {
    holdOthers(&form, nullptr);
    // One that was made while another form was modal has been held from the start.
    const HWND window = native(form.hWnd());
    for (Held& held : holders())
        if (std::erase(held.windows, window) != 0)
            EnableWindow(window, TRUE);
}

Hold::~Hold() {
    release(holders().back());
    holders().pop_back();
}

} // namespace win32
