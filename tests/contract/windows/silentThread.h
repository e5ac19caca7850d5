// A thread of the test program whose window never answers.
#pragma once

#include "platform/types.h"
#include "win32/common/native.h"

#include <windows.h>

#include <string>
#include <thread>

namespace contract {

/// A window in front of all others.
inline HWND makeTopmost(const char* className, const std::string& title) {
    return CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, className, title.c_str(), WS_POPUP, 0, 0, 1, 1,
                           nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
}

/// Has such a window and serves no message until the end.
class SilentThread {
  public:
    SilentThread(const char* className, const std::string& title)
        : thread_([this, className, title] {
              window_ = makeTopmost(className, title);
              SetEvent(made_);
              WaitForSingleObject(end_, INFINITE);
              DestroyWindow(window_);
          }) {
        WaitForSingleObject(made_, INFINITE);
    }
    ~SilentThread() {
        SetEvent(end_);
        thread_.join();
        CloseHandle(made_);
        CloseHandle(end_);
    }
    SilentThread(const SilentThread&) = delete;
    SilentThread& operator=(const SilentThread&) = delete;

    platform::HWND window() const { return win32::neutral(window_); }

  private:
    HANDLE made_ = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    HANDLE end_ = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    HWND window_ = nullptr;
    std::thread thread_;
};

} // namespace contract
