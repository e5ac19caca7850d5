#include "contract/windows/endByError.h"

#include "platform/dialogs.h"
#include "runtime/guard.h"

namespace runtime {

void endByError(const RuntimeError& error) {
    platform::msgBox(unhandledErrorText(error), platform::criticalStyle, "Kestrel");
    throw contract::EndedByError{};
}

} // namespace runtime
