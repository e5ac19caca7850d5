// Keeping our windows painted through work that takes long.
#pragma once

namespace win32 {

/// To be called again and again while the user waits: lets our windows paint what has been uncovered, ten
/// times a second at most. Nothing else is served, no key, no timer and no other program's message.
void paintMeanwhile();

} // namespace win32
