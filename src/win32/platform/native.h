// Handles of the seam as the platform's own, and knowledge of windows that belong to others.
#pragma once

#include "platform/types.h"

#include <windows.h>

#include <cstdint>

namespace win32 {

inline HWND native(platform::HWND window) {
    return reinterpret_cast<HWND>(window); // NOLINT(performance-no-int-to-ptr): handles are numbers
}

inline platform::HWND neutral(HWND window) {
    return platform::HWND{reinterpret_cast<std::uintptr_t>(window)};
}

/// Whether a window belongs to another thread, so that a call to it may have to wait for that one.
inline bool isForeign(HWND window) {
    return GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId();
}

/// Whether the program of a window serves its messages: asked, and waited for only a moment. What makes it
/// change its focus or its order would wait for it without end.
inline bool answers(HWND window) {
    constexpr UINT patience = 200; // milliseconds
    DWORD_PTR answer = 0;
    return SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, patience, &answer) != 0;
}

/// The program's hidden window, which owns its message boxes and dialogs; null before the start.
HWND ownerWindow();

} // namespace win32
