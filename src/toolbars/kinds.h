// What tells the three toolbar forms apart. Everything else about them is one set of routines.
#pragma once

#include "store/buttonLists.h"

#include <cstdint>

namespace toolbars {

struct Differences {
    const char* toolbarName; ///< of the toolbar control
    const char* pictureKey;  ///< of the default picture in the fixed image list
    std::int16_t setupPage;  ///< that the "Config" button opens
    bool touchesPullDown;    ///< loadVarBar makes sure that frmPullDown exists
    bool resizesAtEnd;       ///< loadVarBar brings the form's height up to date
    bool ignoresOver;        ///< a click on a button with the key "Over" does nothing
    float clientHeight;      ///< twips, at design
};

const Differences& differencesOf(store::EditorKind kind);

} // namespace toolbars
