// A picture: an immutable block of 32-bit pixels, shared by all that show it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace forms {

/// A colour as 0x00RRGGBB.
using Colour = std::uint32_t;

inline constexpr Colour black = 0x000000;
inline constexpr Colour white = 0xFFFFFF;
inline constexpr Colour maskGrey = 0xC0C0C0;

/// Makes a pixel without opacity, or a colour, one that hides what is below it.
inline constexpr std::uint32_t opaque = 0xFF000000;

/// Pixels stand row by row from the top, each 0xAARRGGBB. The empty picture has neither width nor height.
class Picture {
  public:
    Picture() = default;
    /// `pixels` holds width * height values; error 5 otherwise.
    Picture(int width, int height, std::vector<std::uint32_t> pixels);

    bool empty() const { return pixels_ == nullptr; }
    int width() const { return width_; }
    int height() const { return height_; }
    std::span<const std::uint32_t> pixels() const;
    /// Error 5 outside the picture.
    std::uint32_t pixel(int x, int y) const;

    /// The same block of pixels or one of equal content.
    bool operator==(const Picture& other) const;

    /// This picture at another size: a picture up to half as large again is cut to its middle, so that an
    /// icon drawn with a margin stays sharp; any other size is scaled, each target pixel being the mean of
    /// what it covers (colours weigh by their opacity). The empty picture becomes a transparent one.
    Picture fitted(int width, int height) const;
    /// The whole picture at another size, each pixel the mean of what it covers.
    Picture scaled(int width, int height) const;

  private:
    int width_ = 0;
    int height_ = 0;
    std::shared_ptr<const std::vector<std::uint32_t>> pixels_;
};

/// A picture that the program carries with it; the empty picture if there is none with this name. Defined
/// beside the platform operations.
Picture loadPicture(std::string_view name);

} // namespace forms
