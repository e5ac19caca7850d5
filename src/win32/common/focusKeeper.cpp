#include "win32/common/focusKeeper.h"

#include "win32/common/joinedHosts.h"
#include "win32/common/userWindow.h"
#include "win32/common/windowChanges.h"

#include <utility>

namespace win32 {

namespace {

FocusKeeper* innermost = nullptr;
KeyboardPlace owed;

bool isOurs(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

} // namespace

bool KeyboardPlace::give() const {
    if (!windowAnswers(front))
        return false;
    bring();
    // The two may share one input whose focus is elsewhere until that window has heard that it is in front.
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(front, nullptr), &info);
    return GetForegroundWindow() == front &&
           (info.hwndFocus == nullptr || GetAncestor(info.hwndFocus, GA_ROOT) == front);
}

void KeyboardPlace::bring() const {
    activateWindow(front);
    // The input of a host is joined with ours, so that the focus inside it can be set from here.
    if (focus != nullptr && IsWindow(focus) != FALSE)
        focusWindow(focus);
}

FocusKeeper::FocusKeeper() : place_{userWindow(), nullptr}, outer_(innermost) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(place_.front, nullptr), &info);
    // A host and we share one focus: it may have gone into a window of ours already, for a keeper before this
    // one.
    if (info.hwndFocus == place_.front || IsChild(place_.front, info.hwndFocus) != FALSE)
        place_.focus = info.hwndFocus;
    else if (outer_ != nullptr && outer_->place_.front == place_.front)
        place_.focus = outer_->place_.focus;
    innermost = this;
}

FocusKeeper::~FocusKeeper() {
    // A form may go that another one has come up over.
    FocusKeeper** link = &innermost;
    while (*link != this)
        link = &(*link)->outer_;
    *link = outer_;
    if (dismissed_)
        return;
    if (IsWindowVisible(place_.front) == FALSE)
        place_ = {userWindow(), nullptr};
    owed = place_.front == nullptr || place_.give() ? KeyboardPlace{} : place_;
}

void FocusKeeper::give() const {
    if (!dismissed_ && IsWindowVisible(place_.front) != FALSE)
        (void)place_.give();
}

void FocusKeeper::leaveAll() {
    // Nobody has it, for a moment, when a window of ours has just gone.
    if (const HWND front = GetForegroundWindow(); front != nullptr && !isOurs(front))
        return;
    for (const FocusKeeper* keeper = innermost; keeper != nullptr; keeper = keeper->outer_)
        if (IsWindow(keeper->place_.front) != FALSE && !isOurs(keeper->place_.front)) {
            (void)keeper->place_.give();
            return;
        }
}

void oweKeyboard(HWND front) {
    owed = {front, nullptr};
}

KeyboardPlace takeOwedKeyboard() {
    return std::exchange(owed, {});
}

} // namespace win32
