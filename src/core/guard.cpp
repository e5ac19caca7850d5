#include "core/guard.h"

#include "core/hauptform.h"
#include "platform/system.h"

namespace core {

namespace {

bool ending = false;

/// Up to the end of the program, which in the tests is not the end of the process.
struct Ending {
    Ending() { ending = true; }
    ~Ending() { ending = false; }
    Ending(const Ending&) = delete;
    Ending& operator=(const Ending&) = delete;
};

} // namespace

bool endingByError() {
    return ending;
}

void endByError(const runtime::RuntimeError& error) {
    const Ending untilTheEnd;
    platform::msgBox(runtime::unhandledErrorText(error), platform::criticalStyle, "Kestrel");
    if (Hauptform* form = hauptform())
        form->delSystray();
    platform::endProgram();
}

} // namespace core
