// Known icons, read without the platform's help, and the number of icons that this process holds.
#pragma once

#include "forms/picture.h"

#include <string>

namespace contract {

/// The picture with this edge in an .ico file of 32-bit pictures. Throws std::runtime_error if there is none.
forms::Picture pictureIn(const std::string& icoFile, int side);

/// Icon handles of this process that are open.
int openIconHandles();

/// Bitmaps, device contexts, fonts and the like of this process that are open.
int openGraphics();

} // namespace contract
