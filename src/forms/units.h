// Twips and pixels. Forms speak twips, hosts speak pixels; the screen has 15 twips to a pixel both ways.
#pragma once

#include <cmath>

namespace forms {

inline constexpr float twipsPerPixel = 15.0F;

inline int toPixels(float twips) {
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

inline float toTwips(int pixels) {
    return static_cast<float>(pixels) * twipsPerPixel;
}

} // namespace forms
