// The end of the program by an error that nothing has handled.
#include "core/hauptform.h"
#include "platform/dialogs.h"
#include "platform/programs.h"
#include "runtime/guard.h"

namespace runtime {

void endByError(const RuntimeError& error) {
    try {
        platform::msgBox(unhandledErrorText(error), platform::criticalStyle, "Kestrel");
    } catch (const RuntimeError&) { // no memory is left to tell it: the program ends all the same
    }
    if (core::Hauptform* form = core::hauptform())
        form->delSystray();
    platform::endProgram();
}

} // namespace runtime
