// The fixed pictures of the toolbars: an image list that never changes while the program runs.
#pragma once

#include "forms/imageList.h"

namespace toolbars {

/// Six pictures of 16 by 16 under the keys "Separator", "BRD", "SCH", "LBR", "Config", "Over".
const forms::ImageList& fixedPictures();

} // namespace toolbars
