#include "win32/common/focusKeeper.h"

#include "win32/common/native.h"
#include "win32/common/windowChanges.h"

namespace win32 {

FocusKeeper::FocusKeeper() : front_(GetForegroundWindow()) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    if (GetGUIThreadInfo(GetWindowThreadProcessId(front_, nullptr), &info) != FALSE)
        focus_ = info.hwndFocus;
}

FocusKeeper::~FocusKeeper() {
    if (front_ == nullptr || IsWindow(front_) == FALSE || !answers(front_))
        return;
    activateWindow(front_);
    // The input of a host is joined with ours, so that the focus inside it can be set from here.
    if (focus_ != nullptr && IsWindow(focus_) != FALSE)
        focusWindow(focus_);
}

} // namespace win32
