// What tells the three toolbar forms apart. Everything else about them is one set of routines.
#pragma once

#include "store/buttonLists.h"

#include <cstdint>

namespace toolbars {

struct Differences {
    const char* pictureKey; ///< of the default picture in the fixed image list
    std::int16_t setupPage; ///< that the "Config" button opens
    bool touchesPullDown;   ///< loadVarBar makes sure that frmPullDown exists
    /// loadVarBar brings the form's height up to date. Kept: not the board's, which after "Config" has the
    /// height of the old buttons until it is next resized.
    bool resizesAtEnd;
    /// A click on a button with the key "Over" does nothing. Kept: in the schematic's toolbar only.
    bool ignoresOver;
    float clientHeight; ///< twips, at design
};

const Differences& differencesOf(store::EditorKind kind);

} // namespace toolbars
