// Known icons, read without the platform's help, and the number of icons that this process holds.
#pragma once

#include "forms/picture.h"

#include <string>

namespace contract {

/// The picture of 16 by 16 pixels in an .ico file of 32-bit pictures. Throws std::runtime_error if there is
/// none.
forms::Picture smallPictureOf(const std::string& icoFile);

/// Icon handles of this process that are open.
int openIconHandles();

} // namespace contract
