// Works that are done one after the other, on one thread.
#pragma once

#include <windows.h>

#include <atomic>
#include <functional>
#include <memory>

namespace win32 {

/// One thread puts works in, another does them. A work may throw, to that thread.
class WorkQueue {
  public:
    struct Work {
        std::function<bool()> code; ///< tells whether it has been answered
        bool asksUser = false;      ///< from its beginning to its end, be there a window of ours or not
    };

    /// Puts a work behind those that a thread is at work on; false if there is none, or the work that it has
    /// taken last is so many milliseconds old.
    bool join(const Work& work, ULONGLONG longest);
    /// Puts the first work in: from here on a thread is at work, which calls `next`.
    void begin(const Work& work);
    /// For that thread: the next one; without code if there is none, and the thread is at work no longer.
    Work next();
    /// No thread is at work.
    void clear();

    bool isAtWork() const { return working_; }
    /// Whether that is on one that asks the user.
    bool asksUser() const { return asks_; }
    /// The thread that is at work on them; 0 if none is, or it has not begun.
    DWORD thread() const { return thread_; }

  private:
    struct Entry {
        Work work;
        std::unique_ptr<Entry> next;
    };
    void append(const Work& work);
    void setPresent(bool working, bool asks, DWORD thread);

    SRWLOCK lock_ = SRWLOCK_INIT;
    std::unique_ptr<Entry> first_;
    ULONGLONG begun_ = 0; ///< the present work, by the system's clock
    std::atomic<bool> working_ = false;
    std::atomic<bool> asks_ = false;
    std::atomic<DWORD> thread_ = 0;
};

} // namespace win32
