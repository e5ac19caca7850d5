#include "core/guard.h"

#include "core/hauptform.h"
#include "platform/system.h"

namespace core {

void endByError(const runtime::RuntimeError& error) {
    constexpr int criticalStyle = 16;
    platform::msgBox(runtime::unhandledErrorText(error), criticalStyle, "Kestrel");
    if (Hauptform* form = hauptform())
        form->delSystray();
    platform::endProgram();
}

} // namespace core
