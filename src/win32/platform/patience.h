// Calls of the system that can hang, on a network that does not answer for instance.
#pragma once

#include <windows.h>

#include <functional>

namespace win32 {

/// Milliseconds that our thread waits at most. A host that answers does so well within this; for one that
/// does not the system takes half a minute. It has to stay below the 5 s after which a thread that fetches no
/// message counts as hung: ours shares its input with EAGLE's.
inline constexpr ULONGLONG patience = 3000;

/// Does the work on a thread of its own and waits so many milliseconds at most: our windows stand inside
/// EAGLE's, whose thread would stand still as long. Nor is it waited for while that thread shows a window:
/// the system asks the user something then, who may take his time. False if the work has not ended by then;
/// it goes on by itself, so it must own all that it uses. An error that it throws is thrown here, unless it
/// comes too late. False as well if no thread can be made; the work is not done then.
bool doPatiently(std::function<void()> work, ULONGLONG longest = patience);

/// Whether a thread of ours shows a window; none does where the number is 0.
bool showsWindow(DWORD thread);

} // namespace win32
