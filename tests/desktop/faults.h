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
    /// Runs at the beginning of each call, watched or not, and may throw: so a program is killed in it. Not
    /// where something is given back, which a destructor may do.
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

/// Whether the program's own code runs now, rather than the desktop's or the test's.
bool programRuns();

/// Whose turn it is, for the length of a block.
class Turn {
  public:
    explicit Turn(bool program);
    ~Turn();
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

  private:
    bool before_;
};

/// Stands at the beginning of each operation of the platform that can fail.
///
/// The operation is the desktop's turn: it lasts as long as this object, which so needs a name.
class [[nodiscard]] Call {
  public:
    explicit Call(const char* name);
    bool fails() const& { return fails_; }
    bool fails() && = delete;

  private:
    Turn desktops_{false};
    bool fails_ = false;
};

} // namespace desktop
