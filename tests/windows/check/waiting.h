// Waiting for a condition. Every wait ends at once when the user wants the check to end.
#pragma once
#include <windows.h>

#include <stdexcept>

namespace waiting {

// Thrown by a wait when the user has stopped the check.
struct Stopped {};

// Something without which the check cannot go on, told in its text.
struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

constexpr int limit =
    60; // seconds: a virus scanner looks at every program that is started for the first time

// From any thread. Who hears of the end of the console waits until the check is over.
void stop();
bool stopped();

// Milliseconds.
void pause(int time);

// Looks until the condition holds. False if it does not come true in time.
template <typename Condition>
[[nodiscard]] bool until(Condition condition, int seconds = limit) {
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(seconds) * 1000;
    while (!condition()) {
        if (GetTickCount64() >= end)
            return false;
        pause(10);
    }
    return true;
}

} // namespace waiting
