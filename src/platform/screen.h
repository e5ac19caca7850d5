// The screen as a whole, and the mouse pointer on it.
#pragma once

namespace platform {

/// Size of the whole screen in pixels, with what the task bar takes of it.
int screenWidth();
int screenHeight();

/// A pointer that tells the user to wait is an arrow again.
void resetMousePointer();

} // namespace platform
