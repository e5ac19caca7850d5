// A timer: raises onTimer again and again while it is enabled and its interval is above 0.
#pragma once

#include <functional>

namespace forms {

class Timer {
  public:
    Timer() = default;
    explicit Timer(int intervalMilliseconds, bool enabled = false);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    int interval() const { return interval_; }
    /// Starts a whole new interval if the timer is on. Error 5 below 0.
    void setInterval(int milliseconds);
    bool enabled() const { return enabled_; }
    /// Switching on starts a whole new interval; switching on what is on changes nothing.
    void setEnabled(bool enabled);

    std::function<void()> onTimer;

    /// Called by the clock. A timer that has been switched off meanwhile ignores it.
    void elapsed();

  private:
    int interval_ = 0;
    bool enabled_ = false;
};

} // namespace forms
