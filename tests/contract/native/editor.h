// An edit field of several lines as it answers key strokes, as far as the contract tests type into one.
#pragma once

#include "platform/keyStroke.h"

#include <span>
#include <string>

namespace contract {

/// The text that an empty field holds after these strokes; lines end in CR LF.
std::string textAfter(std::span<const platform::KeyStroke> strokes);

} // namespace contract
