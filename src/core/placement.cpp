#include "core/placement.h"

#include "calculator/frmMil.h"
#include "runtime/numbers.h"

namespace core {

namespace {
// In pixels of the design.
constexpr int toolbarGap = 25; // between toolbar and right end of the host
constexpr int toolbarTop = 21;
constexpr int narrowestFollowed = 700;
} // namespace

ToolbarPlace placeToolbar(std::int32_t hostWidth, float formWidth, float formHeight,
                          forms::Resolution resolution) {
    const std::int32_t width = resolution.wholePixels(runtime::roundToInt32(formWidth));
    // Kept: the height goes in as it is, in twips. The form's own resize sets the real one right afterwards.
    return {hostWidth - width - resolution.scaled(toolbarGap), resolution.scaled(toolbarTop), width,
            runtime::roundToInt32(formHeight)};
}

float calculatorLeft(std::int32_t hostWidth, bool follows, forms::Resolution resolution) {
    const std::int32_t narrowest = resolution.scaled(narrowestFollowed);
    const std::int32_t width = follows && hostWidth > narrowest ? hostWidth : narrowest;
    return resolution.toTwips(width) - calculator::frmMil::designWidth;
}

} // namespace core
