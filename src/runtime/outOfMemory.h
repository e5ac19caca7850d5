// An allocation that fails is error 7, "Out of memory", like any other error of the language's runtime:
// handled where a routine handles errors, and else by the guard.
#pragma once

namespace runtime {

/// From now on, for the whole program. Without it such a failure is the library's own, which nothing catches.
void raiseOutOfMemory();

} // namespace runtime
