// A program that ends by the platform's call, played by a second process of contract-tests.exe.
#pragma once

namespace contract {

inline constexpr const char* endedProcessArgument = "--ends-at-once";
/// The exit code when the program has not ended by way of the C library.
inline constexpr int endedBesideLibrary = 78;

int endedProcessMain();

} // namespace contract
