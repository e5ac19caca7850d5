// A system that refuses what the program asks for once and keeps, and gives it the next time: played by a
// second process of contract-tests.exe, which has asked for nothing before.
#pragma once

namespace contract {

inline constexpr const char* refusedOnceArgument = "--refused-once";
/// The exit code when all has been asked for again; to it is added what has not, as bits.
inline constexpr int asksAgain = 128;

int refusedOnceMain();

} // namespace contract
