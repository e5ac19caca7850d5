#include "toolbars/pictures.h"

#include <array>
#include <cstdint>

namespace toolbars {

namespace {

struct FixedPicture {
    const char* key;
    std::array<std::uint32_t, pictureSide * pictureSide> pixels;
};

constexpr FixedPicture pictures[] = {
#include "toolbars/pictures.inc"
};

void fill(forms::ImageList& list) {
    for (const FixedPicture& picture : pictures)
        list.add(0, picture.key, {pictureSide, pictureSide, {picture.pixels.begin(), picture.pixels.end()}});
}

} // namespace

const forms::ImageList& fixedPictures() {
    static forms::ImageList list;
    if (list.count() == 0)
        fill(list);
    return list;
}

} // namespace toolbars
