// An icon of a file as a picture.
#pragma once

#include "forms/picture.h"

#include <cstdint>
#include <string>

namespace store {

/// The large icon with number `index` of a file, with its opacity, in a picture of 32 by 32 pixels; the empty
/// picture if there is none. Leaves no icon open.
forms::Picture iconPicture(const std::string& file, std::int32_t index);

} // namespace store
