#include "check/waiting.h"

#include <atomic>

namespace waiting {

static std::atomic<bool> wanted = false;

void stop() {
    wanted = true;
}

bool stopped() {
    return wanted;
}

void pause(int time) {
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(time);
    do {
        if (wanted)
            throw Stopped();
        Sleep(static_cast<DWORD>(time < 20 ? time : 20));
    } while (GetTickCount64() < end);
}

} // namespace waiting
