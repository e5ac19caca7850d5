#include "toolbars/pictures.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace toolbars {

namespace {

struct Drawing {
    std::string_view key;
    int side;              ///< in pixels
    std::string_view data; ///< packed as the table says
};

using std::string_view_literals::operator""sv;

/// Of each key the smaller drawings first.
constexpr Drawing drawings[] = {
#include "toolbars/pictures.inc"
};

std::uint32_t byteAt(std::string_view data, std::size_t place) {
    return static_cast<unsigned char>(data[place]);
}

forms::Picture unpacked(const Drawing& drawing) {
    const std::string_view data = drawing.data;
    const std::size_t colourCount = byteAt(data, 0);
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(drawing.side) * static_cast<std::size_t>(drawing.side));
    for (std::size_t place = 1 + 3 * colourCount; place < data.size(); ++place) {
        const std::uint32_t run = byteAt(data, place);
        const std::size_t colour = 1 + 3 * std::size_t{run & 0xFU};
        pixels.insert(pixels.end(), (run >> 4U) + 1,
                      forms::opaque | byteAt(data, colour) << 16U | byteAt(data, colour + 1) << 8U |
                          byteAt(data, colour + 2));
    }
    return {drawing.side, drawing.side, std::move(pixels)};
}

void fill(forms::ImageList& list) {
    const int side = list.pictureWidth();
    std::string_view last;
    for (std::size_t place = 0; place < std::size(drawings); ++place) {
        const Drawing& drawing = drawings[place];
        const bool largest = place + 1 == std::size(drawings) || drawings[place + 1].key != drawing.key;
        if (drawing.key == last || (drawing.side < side && !largest))
            continue;
        const forms::Picture picture = unpacked(drawing);
        // Not by the list, which cuts the margin off what is little larger: these have none.
        list.add(0, drawing.key, drawing.side > side ? picture.scaled(side, side) : picture);
        last = drawing.key;
    }
}

} // namespace

const forms::ImageList& fixedPictures(forms::Resolution resolution) {
    static forms::ImageList list;
    static forms::Resolution drawnFor;
    if (list.count() == 0 || resolution != drawnFor) {
        drawnFor = resolution;
        list.clear();
        list.setResolution(resolution);
        fill(list);
    }
    return list;
}

} // namespace toolbars
