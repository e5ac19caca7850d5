#include "win32/common/painting.h"

#include <windows.h>

namespace win32 {

void paintMeanwhile() {
    constexpr ULONGLONG pause = 100; // milliseconds
    constexpr int most = 100;        // windows; one that never has enough is not to hold up the work
    static ULONGLONG last = 0;
    const ULONGLONG now = GetTickCount64();
    if (now - last < pause)
        return;
    last = now;
    MSG message;
    for (int painted = 0; painted < most; ++painted) {
        if (PeekMessageW(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE | PM_QS_PAINT) == FALSE)
            return;
        DispatchMessageW(&message);
    }
}

} // namespace win32
