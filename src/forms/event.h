// Raising an event: calling its handler if it has one.
#pragma once

#include <functional>
#include <utility>

namespace forms {

/// Calls a copy of the handler, so that the handler may be replaced or dropped while it runs.
template <typename... Parameters, typename... Arguments>
void raise(const std::function<void(Parameters...)>& handler, Arguments&&... arguments) {
    if (!handler)
        return;
    const std::function<void(Parameters...)> running = handler;
    running(std::forward<Arguments>(arguments)...);
}

} // namespace forms
