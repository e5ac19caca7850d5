#include "setup/arrows.h"

#include <cstdint>
#include <vector>

namespace setup {

namespace {

constexpr int side = 20;
/// Each pixel is looked at in so many places both ways.
constexpr int fineness = 4;
constexpr forms::Colour darkBlue = 0x1F4E8C;

/// Whether a point lies in the arrow that points up; in fine steps from the top left corner.
bool inArrow(int x, int y) {
    constexpr int middle = side * fineness / 2;
    constexpr int tip = 2 * fineness;
    constexpr int shoulder = 11 * fineness;
    constexpr int foot = 18 * fineness;
    constexpr int halfShaft = 3 * fineness;
    // Twice the distance from the middle line, since points lie between the steps.
    const int distance = 2 * x + 1 - 2 * middle;
    const int fromMiddle = distance < 0 ? -distance : distance;
    if (y >= tip && y < shoulder)
        return fromMiddle <= 2 * (y - tip);
    return y >= shoulder && y < foot && fromMiddle <= 2 * halfShaft;
}

std::uint32_t arrowPixel(int x, int y) {
    std::uint32_t inside = 0;
    for (int fineY = 0; fineY < fineness; ++fineY)
        for (int fineX = 0; fineX < fineness; ++fineX)
            inside += inArrow(x * fineness + fineX, y * fineness + fineY) ? 1 : 0;
    return inside * 255 / (fineness * fineness) << 24 | darkBlue;
}

forms::Picture arrow(bool up) {
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            pixels.push_back(arrowPixel(x, up ? y : side - 1 - y));
    return {side, side, std::move(pixels)};
}

} // namespace

forms::Picture upArrow() {
    return arrow(true);
}

forms::Picture downArrow() {
    return arrow(false);
}

} // namespace setup
