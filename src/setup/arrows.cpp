#include "setup/arrows.h"

#include <cstdint>
#include <vector>

namespace setup {

namespace {

/// Each pixel is looked at in so many places both ways.
constexpr int fineness = 4;
constexpr forms::Colour darkBlue = 0x1F4E8C;

/// Whether a point lies in the arrow that points up. Points are counted from the top left corner, `steps` of
/// them to the arrow's width; lengths are told in pixels of the design.
bool inArrow(int x, int y, int steps) {
    constexpr int tip = 2;
    constexpr int shoulder = 11;
    constexpr int foot = 18;
    constexpr int halfShaft = 3;
    // Twice the distance from the middle line, since points lie between the steps.
    const int distance = (2 * x + 1 - steps) * arrowSide;
    const int fromMiddle = distance < 0 ? -distance : distance;
    const int down = y * arrowSide;
    if (down >= tip * steps && down < shoulder * steps)
        return fromMiddle <= 2 * (down - tip * steps);
    return down >= shoulder * steps && down < foot * steps && fromMiddle <= 2 * halfShaft * steps;
}

std::uint32_t arrowPixel(int x, int y, int side) {
    std::uint32_t inside = 0;
    for (int fineY = 0; fineY < fineness; ++fineY)
        for (int fineX = 0; fineX < fineness; ++fineX)
            inside += inArrow(x * fineness + fineX, y * fineness + fineY, side * fineness) ? 1 : 0;
    return inside * 255 / (fineness * fineness) << 24 | darkBlue;
}

forms::Picture arrow(bool up, int side) {
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            pixels.push_back(arrowPixel(x, up ? y : side - 1 - y, side));
    return {side, side, std::move(pixels)};
}

} // namespace

forms::Picture upArrow(int side) {
    return arrow(true, side);
}

forms::Picture downArrow(int side) {
    return arrow(false, side);
}

} // namespace setup
