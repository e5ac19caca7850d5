#include "toolbars/pictures.h"

#include <array>
#include <cstdint>

namespace toolbars {

namespace {

constexpr int side = 16;

struct FixedPicture {
    const char* key;
    std::array<std::uint32_t, side * side> pixels;
};

constexpr FixedPicture pictures[] = {
#include "toolbars/pictures.inc"
};

void fill(forms::ImageList& list) {
    for (const FixedPicture& picture : pictures)
        list.add(0, picture.key, {side, side, {picture.pixels.begin(), picture.pixels.end()}});
}

} // namespace

const forms::ImageList& fixedPictures() {
    static forms::ImageList list;
    if (list.count() == 0)
        fill(list);
    return list;
}

} // namespace toolbars
