#include "win32/platform/leftOpen.h"

#include <utility>

namespace win32 {

namespace {

HANDLE lastSnapshot = INVALID_HANDLE_VALUE;
HICON lastLargeIcon = nullptr;

} // namespace

void keepSnapshot(HANDLE snapshot) {
    lastSnapshot = snapshot;
}

void endLastSnapshot() {
    if (const HANDLE last = std::exchange(lastSnapshot, INVALID_HANDLE_VALUE); last != INVALID_HANDLE_VALUE)
        CloseHandle(last);
}

void keepLargeIcon(HICON icon) {
    lastLargeIcon = icon;
}

void endLastLargeIcon() {
    if (const HICON last = std::exchange(lastLargeIcon, nullptr); last != nullptr)
        DestroyIcon(last);
}

void forgetIcon(HICON icon) {
    if (icon == lastLargeIcon)
        lastLargeIcon = nullptr;
}

} // namespace win32
