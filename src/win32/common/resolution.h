// What follows from how fine a device is.
#pragma once

#include <windows.h>

#include <cmath>

namespace win32 {

/// The height of a font as its record wants it: that of the characters, negative, in pixels of a device with
/// this many dots to the inch.
inline LONG fontHeight(float points, int dots) {
    constexpr float pointsPerInch = 72;
    return -static_cast<LONG>(std::lround(points * static_cast<float>(dots) / pointsPerInch));
}

} // namespace win32
