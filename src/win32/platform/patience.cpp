#include "win32/platform/patience.h"

#include <windows.h>

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
bool await(HANDLE thread) {
    // Milliseconds. A host that answers does so well within this; for one that does not the system takes half
    // a minute. It has to stay below the 5 s after which a thread that fetches no message counts as hung:
    // ours shares its input with EAGLE's.
    constexpr DWORD patience = 3000;
    const ULONGLONG begin = GetTickCount64();
    for (;;) {
        const ULONGLONG passed = GetTickCount64() - begin;
        if (passed >= patience)
            return false;
        const DWORD woken = MsgWaitForMultipleObjects(1, &thread, FALSE,
                                                      static_cast<DWORD>(patience - passed), QS_SENDMESSAGE);
        if (woken == WAIT_OBJECT_0)
            return true;
        if (woken == WAIT_FAILED)
            return false;
        MSG message;
        PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
}

} // namespace

bool doPatiently(std::function<void()> work) {
    auto handed = std::make_unique<Work>(std::move(work));
    const HANDLE thread = CreateThread(nullptr, 0, run, handed.get(), 0, nullptr);
    if (thread == nullptr)
        return false;
    (void)handed.release(); // the thread's
    const bool done = await(thread);
    CloseHandle(thread);
    return done;
}

} // namespace win32
