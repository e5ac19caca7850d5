// A second process of contract-tests.exe, for what would end or change the first one.
#pragma once

namespace contract {

/// Starts one with this argument, which main.cpp knows, and waits for its end. Gives its exit code; -1 if it
/// cannot be started or does not end within a minute.
int exitCodeOfOwn(const char* argument);

} // namespace contract
