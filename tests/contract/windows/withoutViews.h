// A Windows that knows one view for a process, as before 10 of August 2016: played by a second process of
// contract-tests.exe that does not find the system's routines.
#pragma once

namespace contract {

inline constexpr const char* withoutViewsArgument = "--without-views";
/// The exit code when all is as it is to be; else a number of what is not.
inline constexpr int fineWithoutViews = 100;

int withoutViewsMain();

} // namespace contract
