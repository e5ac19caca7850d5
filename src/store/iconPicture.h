// An icon of a file as a picture.
#pragma once

#include "forms/picture.h"
#include "platform/shell32.h"

#include <cstdint>
#include <string>

namespace store {

/// The pixel (0xAARRGGBB) that looks like `onBlack` on black and like `onWhite` on white, both without
/// opacity. An icon may have its opacity or a mask, so both are only seen from what shines through. What
/// turns its background round comes out as it looks on black.
std::uint32_t pixelSeen(std::uint32_t onBlack, std::uint32_t onWhite);

/// The icon with number `index` of a file, with its opacity, in a picture with edges of `side` pixels; the
/// empty picture if there is none. Leaves no icon open.
forms::Picture iconPicture(const std::string& file, std::int32_t index, int side = platform::largeIconSide);

} // namespace store
