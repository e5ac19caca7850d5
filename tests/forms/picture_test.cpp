// Pictures, image lists, and the picture box as a drawing surface.
#include "forms/picture.h"

#include "desktop/desktop.h"
#include "desktop/surfaces.h"
#include "forms/imageList.h"
#include "forms/pictureBox.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <vector>

using forms::Picture;
using Pixels = std::vector<std::uint32_t>;

namespace {

Picture plain(int width, int height, std::uint32_t colour) {
    return {width, height, Pixels(static_cast<std::size_t>(width * height), colour)};
}

/// A picture with another colour in each pixel.
Picture speckled(int width, int height) {
    Pixels pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            pixels.push_back(0xFF000000U | static_cast<std::uint32_t>(y) << 8 |
                             static_cast<std::uint32_t>(x));
    return {width, height, std::move(pixels)};
}

runtime::ErrorNumber errorOf(const std::function<void()>& code) {
    try {
        code();
    } catch (const runtime::RuntimeError& error) {
        return error.number;
    }
    return runtime::ErrorNumber{0};
}

constexpr std::uint32_t grey = 0xFFC0C0C0;

} // namespace

TEST_SUITE_BEGIN("forms/picture");

TEST_CASE("pictures are equal by their content") {
    CHECK(plain(2, 3, 5) == plain(2, 3, 5));
    CHECK_FALSE(plain(2, 3, 5) == plain(3, 2, 5));
    CHECK_FALSE(plain(2, 3, 5) == plain(2, 4, 5));
    CHECK_FALSE(plain(2, 3, 5) == plain(2, 3, 6));
    CHECK(Picture() == Picture(0, 0, {}));
    CHECK_FALSE(Picture() == plain(1, 1, 0));
}

TEST_CASE("a picture has as many pixels as its size says, and none outside") {
    CHECK_THROWS_AS(Picture(2, 2, Pixels(3)), runtime::RuntimeError);
    CHECK_THROWS_AS(Picture(-1, -1, Pixels(1)), runtime::RuntimeError);
    CHECK_THROWS_AS(Picture(1, -1, Pixels(1)), runtime::RuntimeError);
    const Picture picture = speckled(3, 2);
    CHECK(picture.pixel(2, 1) == 0xFF000102);
    CHECK_THROWS_AS(picture.pixel(3, 0), runtime::RuntimeError);
    CHECK_THROWS_AS(picture.pixel(-1, 0), runtime::RuntimeError);
    CHECK_THROWS_AS(picture.pixel(0, 2), runtime::RuntimeError);
    CHECK_THROWS_AS(picture.pixel(0, -1), runtime::RuntimeError);
    CHECK(Picture().empty());
    CHECK(Picture().pixels().empty());
}

TEST_CASE("a picture up to half as large again is cut to its middle") {
    const Picture fitted = speckled(18, 18).fitted(16, 16);
    CHECK(fitted.width() == 16);
    CHECK(fitted.height() == 16);
    CHECK(fitted.pixel(0, 0) == 0xFF000101);
    CHECK(fitted.pixel(15, 15) == 0xFF001010);
    CHECK(speckled(24, 24).fitted(16, 16).pixel(0, 0) == 0xFF000404);
    CHECK(speckled(16, 24).fitted(16, 16).pixel(3, 0) == 0xFF000403);
    CHECK(speckled(16, 16).fitted(16, 16) == speckled(16, 16));
}

TEST_CASE("a picture of another size is scaled to the means of what each pixel covers") {
    const Picture halved = Picture(2, 2, {0xFF000000, 0xFF000004, 0xFF000400, 0xFF040000}).fitted(1, 1);
    CHECK(halved.pixel(0, 0) == 0xFF010101);
    // 25 is more than half as large again: the edge pixels share what lies between them.
    CHECK(plain(25, 25, 0xFF123456).fitted(16, 16) == plain(16, 16, 0xFF123456));
    const Picture thirds = Picture(3, 1, {0xFF000000, 0xFF000060, 0xFF0000C0}).fitted(2, 2);
    CHECK(thirds.pixel(0, 0) == 0xFF000020);
    CHECK(thirds.pixel(1, 1) == 0xFF0000A0);
    // One side smaller: nothing is cut.
    CHECK(plain(17, 8, grey).fitted(16, 16) == plain(16, 16, grey));
}

TEST_CASE("a picture that is made larger repeats its pixels") {
    const Picture large = Picture(2, 1, {0xFF000001, 0xFF000002}).fitted(4, 2);
    CHECK(large == Picture(4, 2,
                           {0xFF000001, 0xFF000001, 0xFF000002, 0xFF000002, 0xFF000001, 0xFF000001,
                            0xFF000002, 0xFF000002}));
}

TEST_CASE("pixels that show nothing give no colour to the mean") {
    const Picture halved = Picture(2, 1, {0x00FFFFFF, 0xFF102030}).fitted(1, 1);
    CHECK(halved.pixel(0, 0) == 0x80102030);
    CHECK(plain(32, 32, 0x00FFFFFF).fitted(16, 16) == plain(16, 16, 0));
}

TEST_CASE("the empty picture fitted to a size shows nothing, and a picture fitted to none is empty") {
    CHECK(Picture().fitted(2, 2) == plain(2, 2, 0));
    CHECK(plain(2, 2, grey).fitted(0, 5).empty());
    CHECK(plain(2, 2, grey).fitted(-1, 5).empty());
    CHECK(plain(2, 2, grey).fitted(5, 0).empty());
}

TEST_CASE("a picture scaled to its own size is itself, and one scaled to none is empty") {
    CHECK(speckled(2, 3).scaled(2, 3) == speckled(2, 3));
    CHECK(plain(2, 3, grey).scaled(2, 5) == plain(2, 5, grey));
    CHECK(plain(2, 3, grey).scaled(0, 5).empty());
    CHECK(plain(2, 3, grey).scaled(5, 0).empty());
}

TEST_CASE("a picture that is too small one way alone is fitted to an image list as anywhere") {
    forms::ImageList list;
    list.add(0, "narrow", speckled(8, 16));
    list.add(0, "low", speckled(16, 8));
    CHECK(list.picture(1) == speckled(8, 16).fitted(16, 16));
    CHECK(list.picture(2) == speckled(16, 8).fitted(16, 16));
}

TEST_CASE("images count from 1, those with a key are found by it") {
    forms::ImageList list;
    list.add(1, "", plain(16, 16, 1));
    list.add(0, "Config", plain(16, 16, 2));
    list.add(1, "first", plain(16, 16, 3));
    CHECK(list.count() == 3);
    CHECK(list.picture(1) == plain(16, 16, 3));
    CHECK(list.picture(2) == plain(16, 16, 1));
    CHECK(list.indexOf("Config") == 3);
    CHECK(list.picture("Config") == plain(16, 16, 2));
    list.clear();
    CHECK(list.count() == 0);
    list.add(1, "Config", plain(16, 16, 2));
}

TEST_CASE(
    "an image number must follow the last, a key can be there once, and what is not there is an error") {
    using runtime::ErrorNumber;
    forms::ImageList list;
    CHECK(errorOf([&] { list.add(2, "", plain(16, 16, 1)); }) == ErrorNumber::subscriptOutOfRange);
    CHECK(errorOf([&] { list.add(-1, "", plain(16, 16, 1)); }) == ErrorNumber::subscriptOutOfRange);
    list.add(1, "a", plain(16, 16, 1));
    CHECK(errorOf([&] { list.add(2, "a", plain(16, 16, 1)); }) == ErrorNumber::keyNotUnique);
    CHECK(list.count() == 1);
    CHECK(errorOf([&] { list.indexOf("A"); }) == ErrorNumber::subscriptOutOfRange);
    CHECK(errorOf([&] { list.indexOf(""); }) == ErrorNumber::subscriptOutOfRange);
    CHECK(errorOf([&] { list.picture(0); }) == ErrorNumber::subscriptOutOfRange);
    CHECK(errorOf([&] { list.picture(2); }) == ErrorNumber::subscriptOutOfRange);
    list.add(2, "", plain(16, 16, 1));
    CHECK(errorOf([&] { list.picture(""); }) == ErrorNumber::subscriptOutOfRange);
}

TEST_CASE("an image takes the size that the list has when it is added") {
    forms::ImageList list;
    list.add(1, "", speckled(18, 18));
    CHECK(list.picture(1).pixel(0, 0) == 0xFF000101);
    list.imageWidth = 32;
    list.imageHeight = 8;
    list.add(2, "", Picture());
    CHECK(list.picture(1).width() == 16);
    CHECK(list.picture(2).width() == 32);
    CHECK(list.picture(2).height() == 8);
}

namespace {

struct Box : forms::PictureBox {
    Box() { setPosition({0, 0, 60, 45}); }
    void draw(int x, int y, std::uint32_t colour) {
        desktop::Pixels* pixels = desktop::pixelsOf(hDC());
        REQUIRE(pixels != nullptr);
        pixels->values.at(static_cast<std::size_t>(y * pixels->width + x)) = colour;
    }
};

Picture withDot(std::uint32_t ground, std::uint32_t colour) {
    Pixels pixels(12, ground);
    pixels[1] = colour;
    return {4, 3, std::move(pixels)};
}

} // namespace

TEST_CASE("a picture box is a blank surface of its size in its back colour before anything is drawn") {
    Box box;
    CHECK(box.image() == plain(4, 3, grey));
    CHECK(box.hDC() == platform::HDC::none);
    box.setBackColour(0x102030);
    CHECK(box.image() == plain(4, 3, 0xFF102030));
}

TEST_CASE("what is drawn while persistent drawing is on stays when it is switched off") {
    Box box;
    box.setAutoRedraw(true);
    box.cls();
    box.draw(1, 0, 0xFF0000FF);
    box.refresh();
    box.setAutoRedraw(false);
    CHECK(box.hDC() == platform::HDC::none);
    CHECK(box.image() == withDot(grey, 0xFF0000FF));
    box.setAutoRedraw(true);
    CHECK(box.image() == withDot(grey, 0xFF0000FF));
    box.cls();
    CHECK(box.image() == plain(4, 3, grey));
}

TEST_CASE("an assigned picture, also none, drops what has been drawn") {
    Box box;
    box.setAutoRedraw(true);
    box.draw(1, 0, 0xFF0000FF);
    SUBCASE("while persistent drawing is on") {
        box.setPicture({});
        CHECK(box.hDC() != platform::HDC::none);
        box.setAutoRedraw(false);
    }
    SUBCASE("while it is off") {
        box.setAutoRedraw(false);
        box.setPicture({});
    }
    CHECK(box.picture().empty());
    CHECK(box.image() == plain(4, 3, grey));
}

TEST_CASE("drawing lies over the picture") {
    Box box;
    box.setPicture(plain(4, 3, 0xFF00FF00));
    CHECK(box.image() == plain(4, 3, 0xFF00FF00));
    box.setAutoRedraw(true);
    box.draw(1, 0, 0xFF0000FF);
    CHECK(box.image() == withDot(0xFF00FF00, 0xFF0000FF));
}

TEST_CASE("a picture fills the box from its corner as far as it reaches; the image is opaque") {
    Box box;
    box.setPicture(Picture(2, 1, {0x00123456, 0xC00000FF}));
    CHECK(box.image() == withDot(grey, 0xFF0000FF));
    box.setPicture(plain(50, 50, 0xFF00FF00));
    CHECK(box.image() == plain(4, 3, 0xFF00FF00));
    // Half of what there is shows, less does not.
    box.setPicture(Picture(2, 1, {0x7F123456, 0x800000FF}));
    CHECK(box.image() == withDot(grey, 0xFF0000FF));
}

TEST_CASE("an image of one box shown in another is what was drawn there") {
    Box scratch;
    forms::PictureBox view;
    view.setPosition({0, 0, 60, 45});
    scratch.setAutoRedraw(true);
    scratch.draw(1, 0, 0xFF0000FF);
    view.setPicture(scratch.image());
    scratch.cls();
    CHECK(view.image() == withDot(grey, 0xFF0000FF));
}

TEST_CASE("a box without a size can be drawn on all the same") {
    forms::PictureBox box;
    box.setAutoRedraw(true);
    CHECK(box.hDC() != platform::HDC::none);
    CHECK(box.image() == plain(1, 1, grey));
}

TEST_CASE("an image list keeps its pictures as large as the resolution has them") {
    forms::ImageList list;
    list.setResolution(forms::Resolution(144));
    list.add(0, "fits", Picture(24, 24, std::vector<std::uint32_t>(24 * 24, 0xFF112233U)));
    CHECK(list.imageWidth == 16);
    CHECK(list.picture(1) == Picture(24, 24, std::vector<std::uint32_t>(24 * 24, 0xFF112233U)));
    // Half of it shows nothing.
    std::vector<std::uint32_t> pixels(16 * 16, 0xFF112233U);
    std::fill(pixels.begin(), pixels.begin() + 16 * 8, forms::opaque | forms::maskGrey);
    list.add(0, "grows", Picture(16, 16, pixels));
    std::vector<std::uint32_t> grown(24 * 24, 0xFF112233U);
    std::fill(grown.begin(), grown.begin() + 24 * 12, forms::opaque | forms::maskGrey);
    CHECK(list.picture(2) == Picture(24, 24, grown));
    // An odd row becomes one and a half: the half that shows is enough, and no colour is mixed with the
    // mask's.
    pixels.assign(16 * 16, forms::opaque | forms::maskGrey);
    std::fill(pixels.begin(), pixels.begin() + 16, 0xFF112233U);
    list.add(0, "odd", Picture(16, 16, pixels));
    CHECK(list.picture(3).pixel(0, 0) == 0xFF112233U);
    CHECK(list.picture(3).pixel(0, 1) == 0xFF112233U);
    CHECK(list.picture(3).pixel(0, 2) == (forms::opaque | forms::maskGrey));
}

TEST_CASE("a list that is cleared gives its memory back") {
    forms::ImageList list;
    list.add(0, "", plain(16, 16, 1));
    list.clear();
    CHECK(list.images().capacity() == 0);
}

TEST_SUITE_END();
