// The splash form at the start of the program.
#pragma once

namespace core {

/// Shows the splash and returns when it has closed. Not built yet: returns at once.
void showSplash();

} // namespace core
