#include "win32/platform/workQueue.h"

#include <utility>

namespace win32 {

namespace {

class Locked {
  public:
    explicit Locked(SRWLOCK& lock) : lock_(lock) { AcquireSRWLockExclusive(&lock_); }
    ~Locked() { ReleaseSRWLockExclusive(&lock_); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;

  private:
    SRWLOCK& lock_;
};

} // namespace

bool WorkQueue::join(const Work& work, ULONGLONG longest) {
    const Locked locked(lock_);
    const bool joins = working_ && GetTickCount64() - begun_ < longest;
    if (joins)
        append(work);
    return joins;
}

void WorkQueue::begin(const Work& work) {
    const Locked locked(lock_);
    append(work);
    setPresent(true, work.asksUser, 0);
}

WorkQueue::Work WorkQueue::next() {
    const Locked locked(lock_);
    if (!first_) {
        setPresent(false, false, 0);
        return {};
    }
    const std::unique_ptr<Entry> taken = std::move(first_);
    first_ = std::move(taken->next);
    setPresent(true, taken->work.asksUser, GetCurrentThreadId());
    return std::move(taken->work);
}

void WorkQueue::clear() {
    while (next().code) {
    }
}

void WorkQueue::append(const Work& work) {
    std::unique_ptr<Entry>* last = &first_;
    while (*last)
        last = &(*last)->next;
    *last = std::make_unique<Entry>(Entry{work, nullptr});
}

void WorkQueue::setPresent(bool working, bool asks, DWORD thread) {
    begun_ = GetTickCount64();
    working_ = working;
    asks_ = asks;
    thread_ = thread;
}

} // namespace win32
