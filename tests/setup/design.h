// The controls of the setup dialog, each with its name, container and place.
#pragma once

#include "setup/frmSetup.h"

#include <string>
#include <vector>

namespace setup {

struct Designed {
    std::string name; ///< with the number of its page behind it: labTitle/0
    forms::Control* control;
    forms::Container* container;
    forms::Position place; ///< twips, in the container's client area
};

/// All controls but the tabs' frames, written down apart from the program's own table, so that a slip there
/// is seen. In each container they come in the order of the Tab key.
std::vector<Designed> designOf(frmSetup& form);

} // namespace setup
