// The error that a call fails with.
#pragma once

#include "runtime/runtimeError.h"

#include <functional>

namespace runtime {

/// Number of the runtime's error, 0 for none. Other exceptions go on.
inline int errorOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const RuntimeError& error) {
        return static_cast<int>(error.number);
    }
    return 0;
}

} // namespace runtime
