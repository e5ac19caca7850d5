// A program for which the system has no library that is bound late, played by a second process of
// contract-tests.exe: what is bound once stays.
#pragma once

namespace contract {

inline constexpr const char* withoutLibrariesArgument = "--without-libraries";
/// The exit code when all that needs one has said so, and has it once the system gives it.
inline constexpr int goesWithout = 78;

int withoutLibrariesMain();

} // namespace contract
