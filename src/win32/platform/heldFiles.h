// Files that another program holds for a moment: a virus scanner, a backup.
#pragma once

#include <windows.h>

namespace win32 {

/// Milliseconds that a file which is held is waited for.
inline constexpr ULONGLONG heldPatience = 500;

/// Does a call that leaves its failure with the thread, again and again while a file is held. One that is
/// held longer is waited for once: the next calls fail at once, until one finds it free.
template <typename Call>
auto awaitHeld(Call&& call) {
    static bool givenUp = false;
    constexpr DWORD betweenTries = 10;
    const ULONGLONG begin = GetTickCount64();
    for (;;) {
        SetLastError(ERROR_SUCCESS);
        const auto result = call();
        const DWORD failure = GetLastError();
        const bool held = failure == ERROR_SHARING_VIOLATION || failure == ERROR_LOCK_VIOLATION;
        if (!held || givenUp || GetTickCount64() - begin >= heldPatience) {
            givenUp = held;
            return result;
        }
        Sleep(betweenTries);
    }
}

} // namespace win32
