// What this process has open, beside icons and graphics (icons.h): counted, since a program that runs for
// weeks may leave nothing but what it leaves on purpose.
#pragma once

#include <cstddef>

namespace contract {

/// Kernel objects of this process. Wine's own count of them is not to be had otherwise.
int openHandles();

/// Top-level windows of this thread, hidden ones too.
int openWindows();

/// Bytes that are taken from the heaps of this process.
std::size_t heapBytes();

/// Bytes in the C++ objects of this process: what the program itself holds, whatever the system's heap makes
/// of it.
std::size_t ownBytes();

/// Memory of this process that no other shares, in bytes; 0 where the system does not tell.
std::size_t privateBytes();

} // namespace contract
