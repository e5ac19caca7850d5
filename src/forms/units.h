// Twips and pixels. Forms speak twips, of which 1440 make an inch; hosts speak pixels. How many pixels make
// an inch is a matter of the screen and of the program that a window belongs to, so each form knows its own.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace forms {

/// Pixels to an inch, and what follows from it. Designs are drawn for 96, where 15 twips make a pixel.
class Resolution {
  public:
    static constexpr int designDpi = 96;

    constexpr Resolution() = default;
    /// The system knows of nothing coarser than the design, and of nothing finer than five times that. What
    /// lies beyond counts as the nearest; 0 is what it tells of a window that has died.
    explicit constexpr Resolution(int dpi) : dpi_(std::clamp(dpi, designDpi, finestDpi)) {}

    /// For what its screen has no room for otherwise: the design itself may be made smaller, as far as its
    /// texts can be read.
    static constexpr Resolution reduced(int dpi) {
        Resolution made;
        made.dpi_ = std::clamp(dpi, coarsestDpi, finestDpi);
        return made;
    }

    constexpr int dpi() const { return dpi_; }
    /// Rounded to the nearest pixel.
    int toPixels(float twips) const {
        return static_cast<int>(std::lround(double{twips} * dpi_ / twipsPerInch));
    }
    float toTwips(int pixels) const {
        return static_cast<float>(static_cast<double>(pixels) * twipsPerInch / dpi_);
    }
    /// Whole pixels that go into a number of twips. That has been rounded, and its rounding takes no pixel
    /// away: the twips of a number of pixels give that number.
    std::int32_t wholePixels(std::int32_t twips) const {
        return static_cast<std::int32_t>((2 * std::int64_t{twips} + 1) * dpi_ / (2 * twipsPerInch));
    }
    /// So many pixels of the design are how many here, halves to the larger number.
    constexpr int scaled(int designPixels) const {
        return static_cast<int>((2 * std::int64_t{designPixels} * dpi_ + designDpi) / (2 * designDpi));
    }

    /// The same, halves to the smaller number.
    constexpr int scaledDown(int designPixels) const {
        return static_cast<int>((2 * std::int64_t{designPixels} * dpi_ + designDpi - 1) / (2 * designDpi));
    }

    constexpr bool operator==(const Resolution&) const = default;

  private:
    static constexpr int twipsPerInch = 1440;
    static constexpr int finestDpi = 480;
    static constexpr int coarsestDpi = 72;

    int dpi_ = designDpi;
};

} // namespace forms
