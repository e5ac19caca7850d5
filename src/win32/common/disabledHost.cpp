#include "win32/common/disabledHost.h"

#include "win32/common/native.h"

#include <vector>

namespace win32 {

namespace {

/// The innermost dialog's comes last; null for an owner that is ours, or that was disabled before.
std::vector<HWND>& disabled() {
    static std::vector<HWND> all;
    return all;
}

HWND hostOf(HWND owner) {
    const HWND root = GetAncestor(owner, GA_ROOT);
    return root != nullptr && isForeign(root) && IsWindowEnabled(root) != FALSE ? root : nullptr;
}

DWORD WINAPI enable(void* window) {
    EnableWindow(static_cast<HWND>(window), TRUE);
    return 0;
}

} // namespace

DisabledHost::DisabledHost(HWND owner) {
    disabled().push_back(hostOf(owner));
}

DisabledHost::~DisabledHost() {
    disabled().pop_back();
}

void enableHosts() {
    for (const HWND host : disabled()) {
        if (host == nullptr || IsWindow(host) == FALSE)
            continue;
        // The window is enabled at once, but the call then tells it so and waits until it has heard: on a
        // thread of its own, which ends with the program.
        const HANDLE thread = CreateThread(nullptr, 0, enable, host, 0, nullptr);
        if (thread == nullptr)
            continue;
        WaitForSingleObject(thread, hostPatience);
        CloseHandle(thread);
    }
}

} // namespace win32
