// The program's own message queue.
#pragma once

namespace platform {

/// Lets pending messages run once.
void doEvents();

} // namespace platform
