#include "forms/picture.h"

#include "runtime/runtimeError.h"

#include <algorithm>
#include <utility>

namespace forms {

namespace {

struct Span {
    int first;
    int end;
};

/// Source pixels that one target pixel covers, in whole or in part.
Span covered(int target, int sourceSize, int targetSize) {
    const std::int64_t from = std::int64_t{target} * sourceSize;
    const std::int64_t to = from + sourceSize;
    return {static_cast<int>(from / targetSize), static_cast<int>((to + targetSize - 1) / targetSize)};
}

/// How much of a source pixel a target pixel covers, in parts of which the source pixel has `targetSize`.
std::uint64_t share(int source, int target, int sourceSize, int targetSize) {
    const std::int64_t from = std::max(std::int64_t{source} * targetSize, std::int64_t{target} * sourceSize);
    const std::int64_t to =
        std::min((std::int64_t{source} + 1) * targetSize, (std::int64_t{target} + 1) * sourceSize);
    return static_cast<std::uint64_t>(to - from);
}

std::uint32_t channel(std::uint32_t pixel, unsigned shift) {
    return pixel >> shift & 0xFFU;
}

/// Sum of pixels, each with a weight.
class Mean {
  public:
    void add(std::uint32_t pixel, std::uint64_t weight) {
        const std::uint64_t opacity = weight * channel(pixel, 24);
        weight_ += weight;
        opacity_ += opacity;
        red_ += opacity * channel(pixel, 16);
        green_ += opacity * channel(pixel, 8);
        blue_ += opacity * channel(pixel, 0);
    }
    std::uint32_t pixel() const {
        if (opacity_ == 0)
            return 0;
        return rounded(opacity_, weight_) << 24 | rounded(red_, opacity_) << 16 |
               rounded(green_, opacity_) << 8 | rounded(blue_, opacity_);
    }

  private:
    static std::uint32_t rounded(std::uint64_t sum, std::uint64_t count) {
        return static_cast<std::uint32_t>((sum + count / 2) / count);
    }

    std::uint64_t weight_ = 0;
    std::uint64_t opacity_ = 0;
    std::uint64_t red_ = 0;
    std::uint64_t green_ = 0;
    std::uint64_t blue_ = 0;
};

bool upToHalfAsLarge(int size, int wanted) {
    return size >= wanted && std::int64_t{size} * 2 <= std::int64_t{wanted} * 3;
}

} // namespace

Picture::Picture(int width, int height, std::vector<std::uint32_t> pixels) {
    if (width < 0 || height < 0 ||
        pixels.size() != static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    if (pixels.empty())
        return;
    width_ = width;
    height_ = height;
    pixels_ = std::make_shared<const std::vector<std::uint32_t>>(std::move(pixels));
}

std::span<const std::uint32_t> Picture::pixels() const {
    return pixels_ ? std::span<const std::uint32_t>(*pixels_) : std::span<const std::uint32_t>();
}

std::uint32_t Picture::pixel(int x, int y) const {
    if (x < 0 || x >= width_ || y < 0 || y >= height_)
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    return (*pixels_)[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                      static_cast<std::size_t>(x)];
}

bool Picture::operator==(const Picture& other) const {
    return width_ == other.width_ && height_ == other.height_ &&
           (pixels_ == other.pixels_ || std::ranges::equal(pixels(), other.pixels()));
}

Picture Picture::fitted(int width, int height) const {
    if (width <= 0 || height <= 0)
        return {};
    if (width == width_ && height == height_)
        return *this;
    if (!upToHalfAsLarge(width_, width) || !upToHalfAsLarge(height_, height))
        return scaled(width, height);
    std::vector<std::uint32_t> result;
    result.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            result.push_back(pixel(x + (width_ - width) / 2, y + (height_ - height) / 2));
    return {width, height, std::move(result)};
}

Picture Picture::scaled(int width, int height) const {
    if (width <= 0 || height <= 0)
        return {};
    if (width == width_ && height == height_)
        return *this;
    std::vector<std::uint32_t> result;
    result.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const Span columns = covered(x, width_, width);
            const Span rows = covered(y, height_, height);
            Mean mean;
            for (int row = rows.first; row < rows.end; ++row)
                for (int column = columns.first; column < columns.end; ++column)
                    mean.add(pixel(column, row),
                             share(row, y, height_, height) * share(column, x, width_, width));
            result.push_back(mean.pixel());
        }
    return {width, height, std::move(result)};
}

} // namespace forms
