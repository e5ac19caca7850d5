// Pixels behind a device context of the simulated desktop.
#pragma once

#include "platform/types.h"

#include <cstdint>
#include <vector>

namespace desktop {

struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> values;
};

/// Null for a context that no surface has.
Pixels* pixelsOf(platform::HDC dc);
/// Surfaces that are there.
std::size_t surfaceCount();

} // namespace desktop
