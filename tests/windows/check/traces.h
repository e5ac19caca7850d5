// What Windows itself remembers of the programs that were played.
#pragma once

namespace traces {

// Windows 11 keeps a row in its settings for every program that ever had an icon in the tray: takes away
// those that had theirs from the temporary folder.
void remove();

} // namespace traces
