// The guard around every entry from the outside: timers, messages, control events, the start itself.
//
// A runtime error that nothing has handled ends here: it is shown, the tray icon is removed and the program
// ends at once.
#pragma once

#include "runtime/runtimeError.h"

#include <utility>

namespace core {

/// Shows the error and ends the program.
[[noreturn]] void endByError(const runtime::RuntimeError& error);

/// Whether an error is being shown. The message box serves timers and messages, but no code of the program
/// runs any more.
bool endingByError();

template <typename Code>
void guarded(Code&& code) {
    if (endingByError())
        return;
    try {
        std::forward<Code>(code)();
    } catch (const runtime::RuntimeError& error) {
        endByError(error);
    }
}

} // namespace core
