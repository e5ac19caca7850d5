// The fixed pictures at the resolutions of screens.
#include "toolbars/pictures.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <utility>

using forms::Picture;
using forms::Resolution;
using toolbars::fixedPictures;

namespace {

constexpr const char* shownKeys[] = {"BRD", "SCH", "LBR", "Config"};
constexpr std::uint32_t mask = forms::opaque | forms::maskGrey;

std::size_t coloursOf(const Picture& picture) {
    return std::set(picture.pixels().begin(), picture.pixels().end()).size();
}

} // namespace

TEST_SUITE_BEGIN("toolbars/pictures");

TEST_CASE("each picture is as large as a toolbar of that resolution has it") {
    for (const auto& [dpi, side] :
         {std::pair(96, 16), std::pair(120, 20), std::pair(144, 24), std::pair(168, 28), std::pair(192, 32),
          std::pair(240, 40), std::pair(288, 48), std::pair(300, 50), std::pair(480, 80)})
        for (const char* key : {"Separator", "BRD", "SCH", "LBR", "Config", "Over"}) {
            CAPTURE(dpi);
            CAPTURE(std::string(key));
            const Picture& picture = fixedPictures(Resolution(dpi)).picture(key);
            CHECK(picture.width() == side);
            CHECK(picture.height() == side);
            const auto drawn = picture.pixels().size() -
                               static_cast<std::size_t>(std::ranges::count(picture.pixels(), mask));
            CHECK(drawn > picture.pixels().size() / 4);
        }
}

TEST_CASE("what buttons show has a drawing for each usual resolution and is neither grown nor made smaller") {
    constexpr std::size_t mostOfADrawing = 16;
    for (const int dpi : {96, 120, 144, 192, 288})
        for (const char* key : shownKeys) {
            CAPTURE(dpi);
            CAPTURE(std::string(key));
            CHECK(coloursOf(fixedPictures(Resolution(dpi)).picture(key)) <= mostOfADrawing);
        }
}

TEST_CASE("between the usual resolutions the next larger drawing is made smaller") {
    for (const auto& [dpi, larger] :
         {std::pair(108, 120), std::pair(132, 144), std::pair(168, 192), std::pair(240, 288)})
        for (const char* key : shownKeys) {
            CAPTURE(dpi);
            const Picture& drawn = fixedPictures(Resolution(larger)).picture(key);
            const int side = Resolution(dpi).scaled(toolbars::pictureSide);
            const Picture smaller = drawn.scaled(side, side);
            CHECK(fixedPictures(Resolution(dpi)).picture(key) == smaller);
        }
}

TEST_CASE("the drawings of one key show the same, and their plain colours are those of the design") {
    for (const int dpi : {96, 120, 144, 192, 288}) {
        CAPTURE(dpi);
        const forms::ImageList& list = fixedPictures(Resolution(dpi));
        const int middle = list.pictureWidth() / 2;
        CHECK(list.picture("Config").pixel(middle, middle) == (forms::opaque | 0xF2B632)); // the hub
        for (const std::uint32_t colour : {0x2F9E5AU, 0x26313BU, 0xFFD45CU}) // board, component, pads
            CHECK(std::ranges::count(list.picture("BRD").pixels(), forms::opaque | colour) >= 6);
    }
}

TEST_CASE("a picture that was taken stays when another resolution is asked for, and the list is made anew") {
    const Picture fine = fixedPictures(Resolution(192)).picture("Config");
    CHECK(fixedPictures().picture("Config").width() == 16);
    CHECK(fixedPictures().count() == 6);
    CHECK(fine.width() == 32);
    CHECK(fixedPictures(Resolution(192)).picture("Config") == fine);
}

TEST_SUITE_END();
