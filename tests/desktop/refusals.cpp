#include "platform/refusals.h"

#include "desktop/desktop.h"

namespace platform {

bool refusedLately() {
    constexpr std::int64_t pause = 800; // milliseconds
    const desktop::World& desk = desktop::world();
    return desk.lastRefusal && desk.now - *desk.lastRefusal < pause;
}

} // namespace platform
