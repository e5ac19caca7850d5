#include "forms/timer.h"

#include "forms/event.h"
#include "forms/peer.h"
#include "runtime/runtimeError.h"

namespace forms {

Timer::Timer(int intervalMilliseconds, bool enabled) {
    setInterval(intervalMilliseconds);
    setEnabled(enabled);
}

Timer::~Timer() {
    setEnabled(false);
}

void Timer::setInterval(int milliseconds) {
    if (milliseconds < 0)
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    interval_ = milliseconds;
    if (enabled_)
        timerChanged(*this);
}

void Timer::setEnabled(bool enabled) {
    if (enabled == enabled_)
        return;
    enabled_ = enabled;
    timerChanged(*this);
}

void Timer::elapsed() {
    if (enabled_ && interval_ > 0)
        raise(onTimer);
}

} // namespace forms
