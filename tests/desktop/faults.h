// Calls of the platform, counted, and the one among them that fails: in its documented way, and with no
// effect.
#pragma once

#include <functional>
#include <map>
#include <string>

namespace desktop {

class Faults {
  public:
    /// Counts from now on. The call with this number, from 1, fails; none with 0.
    void watch(int failing);
    /// Nothing fails any more.
    void stop();
    /// How many calls there have been, and which one has failed: empty if none has.
    int calls() const { return calls_; }
    const std::string& failed() const { return failed_; }
    /// How often each has been called.
    const std::map<std::string, int>& counts() const { return counts_; }
    /// Runs at the beginning of each call, watched or not, and may throw: so a program is killed in it.
    std::function<void(const std::string& call)> onCall;

  private:
    friend class Call;

    bool watching_ = false;
    int failing_ = 0;
    int calls_ = 0;
    std::string failed_;
    std::map<std::string, int> counts_;
};

Faults& faults();

/// Stands at the beginning of each operation of the platform that can fail.
class Call {
  public:
    explicit Call(const char* name);
    bool fails() const { return fails_; }

  private:
    bool fails_ = false;
};

} // namespace desktop
