// Calls of the system that can hang, on a network that does not answer for instance.
#pragma once

#include <functional>

namespace win32 {

/// Does the work on a thread of its own and waits a few seconds at most: our windows stand inside EAGLE's,
/// whose thread shares its input with ours and would stand still as long. False if the work has not ended by
/// then; it goes on by itself, so it must own all that it uses. The work must not throw.
bool doPatiently(std::function<void()> work);

} // namespace win32
