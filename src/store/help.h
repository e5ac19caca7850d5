// The help file, as the menu of the tray icon and the setup open it.
#pragma once

namespace store {

/// Opens the start topic in the current language. While there is no help viewer it beeps, says so and tries
/// again; a missing help file is the viewer's own affair.
void showHelp();

} // namespace store
