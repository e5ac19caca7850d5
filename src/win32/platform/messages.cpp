#include "platform/messages.h"

#include "win32/common/messages.h"

namespace platform {

void doEvents() {
    win32::servePending();
}

} // namespace platform
