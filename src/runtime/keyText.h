// The notation in which key strokes are written: parsing only. Injecting them is the platform's.
#pragma once

#include "platform/keyStroke.h"

#include <string_view>
#include <vector>

namespace runtime {

/// Reads a text in the notation. What is not well formed stands for itself: nothing is lost, nothing fails.
/// Repeat counts are held to 32767.
std::vector<platform::KeyStroke> parseKeyText(std::string_view text);

} // namespace runtime
