// The pictures of the two buttons that move an entry.
#pragma once

#include "forms/picture.h"

namespace setup {

/// Width and height of an arrow in pixels of the design.
inline constexpr int arrowSide = 20;

/// An arrow with soft edges, on nothing, of `side` by `side` pixels.
forms::Picture upArrow(int side = arrowSide);
forms::Picture downArrow(int side = arrowSide);

} // namespace setup
