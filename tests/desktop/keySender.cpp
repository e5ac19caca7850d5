#include "platform/keySender.h"

#include "desktop/desktop.h"

namespace platform {

void sendKeys(std::span<const KeyStroke> strokes, bool wait) {
    desktop::world().typed.push_back({desktop::world().foreground, {strokes.begin(), strokes.end()}, wait});
}

} // namespace platform
