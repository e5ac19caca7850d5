// The system has no room left: from some call on, a function that makes something gives nothing.
#pragma once

#include <functional>
#include <map>
#include <string_view>

namespace contract {

/// From its making to its end the first `left` calls of a function go well and all others fail: of one that
/// makes windows, fonts, icons, picture lists, bitmaps, brushes or device contexts. Calls of the system's own
/// DLLs are not met. One at a time.
class CreationLimit {
  public:
    CreationLimit(std::string_view function, int left);
    ~CreationLimit();
    CreationLimit(const CreationLimit&) = delete;
    CreationLimit& operator=(const CreationLimit&) = delete;

    /// Whether a call has failed.
    static bool met();
};

/// How often each such function is called in the course of an action.
std::map<std::string_view, int> creationsOf(const std::function<void()>& action);

} // namespace contract
