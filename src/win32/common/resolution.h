// How fine the screen is. The manifest makes this a program that knows of one resolution only: on any other
// the system shows it this one, and enlarges the finished picture.
#pragma once

#include <windows.h>

#include <cmath>

namespace win32 {

/// Of the screen; 1440 twips make an inch as well, and so 15 a pixel.
inline constexpr int dotsPerInch = 96;

/// The height of a font as its record wants it: that of the characters, negative, in pixels of a device with
/// this many dots to the inch.
inline LONG fontHeight(float points, int dots) {
    constexpr float pointsPerInch = 72;
    return -static_cast<LONG>(std::lround(points * static_cast<float>(dots) / pointsPerInch));
}

} // namespace win32
