#include "win32/platform/patience.h"

#include "runtime/runtimeError.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace win32 {

namespace {

struct Work {
    explicit Work(std::function<void()> work) : code(std::move(work)) {}

    std::function<void()> code;
    std::optional<runtime::RuntimeError> failure;
};

/// Milliseconds after which it is looked anew whether the user is asked.
constexpr ULONGLONG betweenLooks = 50;

BOOL CALLBACK isSeen(HWND window, LPARAM found) {
    if (IsWindowVisible(window) == FALSE)
        return TRUE;
    *reinterpret_cast<bool*>(found) = true;
    return FALSE;
}

DWORD WINAPI run(void* parameter) {
    const std::unique_ptr<std::shared_ptr<Work>> work(static_cast<std::shared_ptr<Work>*>(parameter));
    try {
        (*work)->code();
    } catch (const runtime::RuntimeError& error) { // nothing may leave the thread
        (*work)->failure = error;
    }
    return 0;
}

/// Waits for the end of the thread, or until it asks the user. Other programs may send messages to our
/// windows meanwhile, the work's own calls among them: those are answered.
bool await(HANDLE thread, DWORD number, ULONGLONG longest) {
    const ULONGLONG begin = GetTickCount64();
    for (;;) {
        const ULONGLONG passed = GetTickCount64() - begin;
        // It may have ended while a message was answered.
        if (passed >= longest || showsWindow(number))
            return WaitForSingleObject(thread, 0) == WAIT_OBJECT_0;
        const auto left = static_cast<DWORD>(std::min(longest - passed, betweenLooks));
        const DWORD woken = MsgWaitForMultipleObjects(1, &thread, FALSE, left, QS_SENDMESSAGE);
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
    const auto shared = std::make_shared<Work>(std::move(work));
    auto handed = std::make_unique<std::shared_ptr<Work>>(shared);
    DWORD number = 0;
    const HANDLE thread = CreateThread(nullptr, 0, run, handed.get(), 0, &number);
    if (thread == nullptr)
        return false;
    (void)handed.release(); // the thread's
    const bool done = await(thread, number, longest);
    CloseHandle(thread);
    if (done && shared->failure)
        throw runtime::RuntimeError(*shared->failure);
    return done;
}

bool showsWindow(DWORD thread) {
    bool found = false;
    if (thread != 0)
        EnumThreadWindows(thread, isSeen, reinterpret_cast<LPARAM>(&found));
    return found;
}

} // namespace win32
