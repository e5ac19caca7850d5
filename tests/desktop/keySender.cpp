#include "platform/keySender.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"

namespace platform {

void sendKeys(std::span<const KeyStroke> strokes, bool wait) {
    if (desktop::Call("sendKeys").fails())
        return;
    desktop::world().typed.push_back({desktop::world().foreground, {strokes.begin(), strokes.end()}, wait});
}

} // namespace platform
