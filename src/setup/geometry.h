// Where the controls of the setup dialog stand: the one table of their containers, places and start states.
#pragma once

namespace setup {

class frmSetup;

/// Places all controls of a new form and gives them their start states.
void placeControls(frmSetup& form);

} // namespace setup
