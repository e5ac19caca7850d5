// Pictures of icons against the files that they come from.
#include "store/iconPicture.h"

#include "contract/windows/icons.h"
#include "contract/world.h"

#include <doctest/doctest.h>

#include <cstdlib>

namespace {

int channel(std::uint32_t pixel, unsigned shift) {
    return static_cast<int>(pixel >> shift & 0xFFU);
}

/// As near as drawing on two backgrounds can tell: the fainter a pixel, the less is known of its colour.
bool alike(std::uint32_t seen, std::uint32_t expected) {
    const int opacity = channel(expected, 24);
    if (std::abs(channel(seen, 24) - opacity) > 2)
        return false;
    for (const unsigned shift : {0U, 8U, 16U})
        if (opacity > 0 && std::abs(channel(seen, shift) - channel(expected, shift)) * opacity > 3 * 255)
            return false;
    return true;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/iconPicture");

TEST_CASE("the picture of an icon is the one that stands in the file, opacity and colours") {
    const contract::World world;
    for (const char* name : {"brd.ico", "sch.ico", "lbr.ico"}) {
        const std::string file = contract::World::dataFile(name);
        const forms::Picture expected = contract::pictureIn(file, 32);
        const forms::Picture seen = store::iconPicture(file, 0);
        REQUIRE(seen.pixels().size() == expected.pixels().size());
        int wrong = 0;
        for (std::size_t place = 0; place < expected.pixels().size(); ++place)
            wrong += alike(seen.pixels()[place], expected.pixels()[place]) ? 0 : 1;
        CHECK_MESSAGE(wrong == 0, name);
    }
}

TEST_SUITE_END();
