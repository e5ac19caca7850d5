#include "platform/awareness.h"

#include "win32/common/native.h"
#include "win32/common/views.h"

namespace platform {

int dpiOf(HWND window) {
    return win32::dpiOf(win32::native(window));
}

InAwarenessOf::InAwarenessOf(HWND window)
    : former_(reinterpret_cast<std::uintptr_t>(win32::enter(win32::viewOf(win32::native(window))))) {}

InAwarenessOf::~InAwarenessOf() {
    win32::enter(reinterpret_cast<win32::View>(former_));
}

} // namespace platform
