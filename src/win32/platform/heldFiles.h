// Files that another program holds for a moment: a virus scanner, a backup.
#pragma once

#include <windows.h>

namespace win32 {

/// Milliseconds that a file which is held is waited for, and those between two tries.
inline constexpr ULONGLONG heldPatience = 500;
inline constexpr DWORD betweenTries = 10;

/// Whether a failure says that a file is held.
inline bool isHeld(DWORD failure) {
    return failure == ERROR_SHARING_VIOLATION || failure == ERROR_LOCK_VIOLATION;
}

/// Does a call that leaves its failure with the thread, again and again while a file is held. One that is
/// held longer is waited for once: the next calls fail at once, until one finds it free.
template <typename Call>
auto awaitHeld(Call&& call) {
    static bool givenUp = false;
    const ULONGLONG begin = GetTickCount64();
    for (;;) {
        SetLastError(ERROR_SUCCESS);
        const auto result = call();
        const bool held = isHeld(GetLastError());
        if (!held || givenUp || GetTickCount64() - begin >= heldPatience) {
            givenUp = held;
            return result;
        }
        Sleep(betweenTries);
    }
}

} // namespace win32
