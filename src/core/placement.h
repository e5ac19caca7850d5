// Where a toolbar and a calculator stand in their host: pure arithmetic on twips and the pixels of a host,
// which may have more of them to an inch than the design.
#pragma once

#include "forms/units.h"

#include <cstdint>

namespace core {

/// Pixels, client coordinates of the host. The height is a number of twips that is handed on as pixels.
struct ToolbarPlace {
    std::int32_t x;
    std::int32_t y;
    std::int32_t width;
    std::int32_t height;

    bool operator==(const ToolbarPlace&) const = default;
};

/// `hostWidth` in the host's pixels, the form's size in twips. Error 6 for sizes beyond 32 bits.
ToolbarPlace placeToolbar(std::int32_t hostWidth, float formWidth, float formHeight,
                          forms::Resolution resolution);

/// Left edge of the calculator's frame in twips. It follows the host's width in pixels only if `follows`.
float calculatorLeft(std::int32_t hostWidth, bool follows, forms::Resolution resolution);

} // namespace core
