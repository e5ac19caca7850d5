#include "platform/messages.h"

#include "desktop/desktop.h"

namespace platform {

void doEvents() {
    ++desktop::world().messagePumps;
    if (const auto pending = desktop::world().onPump)
        pending();
}

} // namespace platform
