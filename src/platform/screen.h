// The screen as a whole, its resolution, and the mouse pointer on it.
#pragma once

#include "platform/types.h"

namespace platform {

/// Size of the whole screen in pixels, with what the task bar takes of it.
int screenWidth();
int screenHeight();
/// What the task bar and its like leave of the screen: screen pixels. The whole screen if the system does not
/// tell.
RECT workArea();

/// A pointer that tells the user to wait is an arrow again.
void resetMousePointer();

} // namespace platform
