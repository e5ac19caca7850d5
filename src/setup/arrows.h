// The pictures of the two buttons that move an entry.
#pragma once

#include "forms/picture.h"

namespace setup {

/// An arrow of 20 by 20 pixels with soft edges, on nothing.
forms::Picture upArrow();
forms::Picture downArrow();

} // namespace setup
