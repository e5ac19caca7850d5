#include "win32/platform/patience.h"

#include <memory>
#include <utility>

namespace win32 {

namespace {

using Work = std::function<void()>;

DWORD WINAPI run(void* parameter) {
    const std::unique_ptr<Work> work(static_cast<Work*>(parameter));
    (*work)();
    return 0;
}

/// Waits for the end of the thread. Other programs may send messages to our windows meanwhile, the work's own
/// calls among them: those are answered.
bool await(HANDLE thread, ULONGLONG longest) {
    const ULONGLONG begin = GetTickCount64();
    for (;;) {
        const ULONGLONG passed = GetTickCount64() - begin;
        // It may have ended while a message was answered.
        if (passed >= longest)
            return WaitForSingleObject(thread, 0) == WAIT_OBJECT_0;
        const DWORD woken = MsgWaitForMultipleObjects(1, &thread, FALSE, static_cast<DWORD>(longest - passed),
                                                      QS_SENDMESSAGE);
        if (woken == WAIT_OBJECT_0)
            return true;
        if (woken == WAIT_FAILED)
            return false;
        MSG message;
        PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
}

} // namespace

bool doPatiently(std::function<void()> work, ULONGLONG longest) {
    auto handed = std::make_unique<Work>(std::move(work));
    const HANDLE thread = CreateThread(nullptr, 0, run, handed.get(), 0, nullptr);
    if (thread == nullptr)
        return false;
    (void)handed.release(); // the thread's
    const bool done = await(thread, longest);
    CloseHandle(thread);
    return done;
}

} // namespace win32
