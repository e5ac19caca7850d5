// The control panel: the window that is there as long as the program runs. Closing it ends the program.
#pragma once

namespace controlPanel {

void open();

} // namespace controlPanel
