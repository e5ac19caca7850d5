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
/// The same of the screen that a rectangle, in screen pixels, stands on or is nearest to.
RECT workAreaAt(const RECT& place);
/// Pixels to an inch of the main screen, as the program sees it.
int screenDpi();

/// A pointer that tells the user to wait is an arrow again.
void resetMousePointer();

} // namespace platform
