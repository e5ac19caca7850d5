// The key sender: key strokes as if the user typed them.
#pragma once

#include "platform/keyStroke.h"

#include <span>

namespace platform {

/// Types key strokes into the window that has the keyboard focus. With `wait` it returns only after the
/// window in front has processed them, or after two seconds.
void sendKeys(std::span<const KeyStroke> strokes, bool wait);

} // namespace platform
