// The fixed pictures of the toolbars: an image list that never changes while the program runs.
#pragma once

#include "forms/imageList.h"

namespace toolbars {

/// Width and height of a picture on a toolbar, in pixels.
inline constexpr int pictureSide = 16;

/// Six pictures under the keys "Separator", "BRD", "SCH", "LBR", "Config", "Over".
const forms::ImageList& fixedPictures();

} // namespace toolbars
