// A program whose timer faults, played by a second process of contract-tests.exe.
#pragma once

namespace contract {

inline constexpr const char* faultingTimerArgument = "--faulting-timer";
/// The exit code when the fault has ended it; 0 when the fault was swallowed.
inline constexpr int endedByFault = 77;

int faultingTimerMain();

} // namespace contract
