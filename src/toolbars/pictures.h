// The fixed pictures of the toolbars. What buttons show is drawn in the sizes of screens of 96 to 288 dpi.
#pragma once

#include "forms/imageList.h"

namespace toolbars {

/// Width and height of a picture on a toolbar, in pixels of the design.
inline constexpr int pictureSide = 16;

/// Six pictures under the keys "Separator", "BRD", "SCH", "LBR", "Config", "Over", as large as a toolbar of
/// this resolution has them: drawn so, or made smaller from the next larger drawing, or larger where there is
/// none. The list stands until another resolution is asked for.
const forms::ImageList& fixedPictures(forms::Resolution resolution = {});

} // namespace toolbars
