// What the system refuses to our forms.
#pragma once

namespace platform {

/// Whether the system has lately (0.8 s, the fifth tick is free again) refused to make a window for a form of
/// ours, or to put one into a host.
bool refusedLately();

} // namespace platform
