// A program that needs more rights than ours, and the user who is asked for them.
#pragma once

#include <string>

namespace contract {

/// From its making to its end the program at this path cannot be started as others are: error 740. The shell
/// starts it once the user has said yes. One at a time.
class MoreRights {
  public:
    explicit MoreRights(const std::string& program);
    /// A question that is still up is answered with no.
    ~MoreRights();
    MoreRights(const MoreRights&) = delete;
    MoreRights& operator=(const MoreRights&) = delete;

    /// How often the user was asked.
    static int questions();
    /// To the question that is up, or to the next.
    static void answer(bool yes);
    /// With what flags any program was last started.
    static unsigned long startFlags();
};

} // namespace contract
