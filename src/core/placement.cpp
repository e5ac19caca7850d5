#include "core/placement.h"

#include "calculator/frmMil.h"
#include "runtime/numbers.h"

namespace core {

namespace {
constexpr std::int32_t toolbarGap = 25;         // pixels between toolbar and right end of the host
constexpr std::int32_t toolbarTop = 21;         // pixels
constexpr std::int32_t narrowestFollowed = 700; // pixels
} // namespace

ToolbarPlace placeToolbar(std::int32_t hostWidth, float formWidth, float formHeight, double twipsPerPixel) {
    const std::int32_t width = runtime::roundToInt32(formWidth) / runtime::roundToInt32(twipsPerPixel);
    // Kept: the height goes in as it is, in twips. The form's own resize sets the real one right afterwards.
    return {hostWidth - width - toolbarGap, toolbarTop, width, runtime::roundToInt32(formHeight)};
}

float calculatorLeft(std::int32_t hostWidth, bool follows, double twipsPerPixel) {
    const std::int32_t width = follows && hostWidth > narrowestFollowed ? hostWidth : narrowestFollowed;
    return static_cast<float>(width * twipsPerPixel - double{calculator::frmMil::designWidth});
}

} // namespace core
