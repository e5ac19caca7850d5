// The guard around every entry from the outside: timers, messages, control events, the start itself.
//
// A runtime error that nothing has handled ends here, and with it the program.
#pragma once

#include "runtime/runtimeError.h"

#include <utility>

namespace runtime {

/// How the program ends by an error: it is shown and the program ends at once. Substituted at link time, like
/// the platform's operations; the program's own stands in core, which knows what has to be cleared away.
[[noreturn]] void endByError(const RuntimeError& error);

/// Marks the end and ends the program by the error.
[[noreturn]] void unhandled(const RuntimeError& error);

/// Whether an error is being shown. The message box serves timers and messages, but no code of the program
/// runs any more.
bool endingByError();

template <typename Code>
void guarded(Code&& code) {
    if (endingByError())
        return;
    try {
        std::forward<Code>(code)();
    } catch (const RuntimeError& error) {
        unhandled(error);
    }
}

} // namespace runtime
