// The other program of the tests, played by a second process of contract-tests.exe.
#pragma once

namespace contract {

/// Runs it until its standard input ends.
int otherProgramMain();

} // namespace contract
