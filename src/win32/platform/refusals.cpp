#include "platform/refusals.h"

#include "win32/common/refusal.h"

namespace platform {

bool refusedLately() {
    return win32::refusedLately();
}

} // namespace platform
