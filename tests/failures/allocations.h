// Allocations of the program, counted, and the one among them that fails.
#pragma once

namespace failures {

/// Which of them fail from one on.
enum class Failing { once, forGood };

/// Counts from now on. The allocation with this number, from 1, fails, and for good all after it; none with
/// 0.
void watchAllocations(int failing, Failing how = Failing::once);

/// Nothing fails any more. How many there have been.
int stopAllocations();

} // namespace failures
