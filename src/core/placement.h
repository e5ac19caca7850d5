// Where a toolbar and a calculator stand in their host: pure arithmetic on pixels and twips.
#pragma once

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

/// `hostWidth` in pixels, the form's size in twips. Error 6 for sizes beyond 32 bits.
ToolbarPlace placeToolbar(std::int32_t hostWidth, float formWidth, float formHeight, double twipsPerPixel);

/// Left edge of the calculator's frame in twips. It follows the host's width in pixels only if `follows`.
float calculatorLeft(std::int32_t hostWidth, bool follows, double twipsPerPixel);

} // namespace core
