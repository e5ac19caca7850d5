// Handles of the seam as the platform's own, and knowledge of windows that belong to others.
#pragma once

#include "platform/types.h"

#include <windows.h>

#include <cstdint>

namespace win32 {

inline HWND native(platform::HWND window) {
    return reinterpret_cast<HWND>(window); // handles are numbers
}

inline platform::HWND neutral(HWND window) {
    return platform::HWND{reinterpret_cast<std::uintptr_t>(window)};
}

/// Whether a window belongs to another thread, so that a call to it may have to wait for that one.
inline bool isForeign(HWND window) {
    return GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId();
}

/// How long a window of another program is waited for, in milliseconds; not at all if the system knows
/// already that it hangs. Without a bound a host that slept for 4 s held us for 4 s with a move of the mouse
/// (measured under Wine). It has to be longer than a host takes that is only busy painting, and no longer
/// than it is from tick to tick. What a host must not miss is sent again without waiting: one once stayed
/// without drawing.
inline constexpr UINT hostPatience = 200;

/// How long a host may be silent before it counts as one that hangs where nothing of ours has to wait for it,
/// in milliseconds: longer than a command of EAGLE's usually takes.
inline constexpr UINT stallPatience = 1000;

/// Whether the program of a window serves its messages: asked, and waited for only so many milliseconds. What
/// makes it change its focus or its order would wait for it without end.
inline bool answers(HWND window, UINT patience = hostPatience) {
    DWORD_PTR answer = 0;
    return SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, patience, &answer) != 0;
}

} // namespace win32
