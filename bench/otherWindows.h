// Windows of a program that is neither EAGLE nor Kestrel, for both to find beside them.
#pragma once

namespace bench {

/// Handles messages until the program is ended.
int serve();

/// Opens so many top-level windows, says "ready" and serves them.
int openWindows(int count);

} // namespace bench
