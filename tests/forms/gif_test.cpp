#include "forms/gif.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <vector>

namespace {

using File = std::vector<std::uint8_t>;

constexpr std::uint32_t red = 0xFFFF0000;
constexpr std::uint32_t blue = 0xFF0000FF;

File splashSquare() {
    std::ifstream file(RESOURCES "/splash-square.gif", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A file of four colours, of which the second is red and the third blue, from the codes of its pixels.
class Written {
  public:
    static constexpr unsigned anew = 4;
    static constexpr unsigned end = 5;
    static constexpr unsigned firstOwn = 6;

    void add(unsigned code) {
        for (unsigned bit = 0; bit < bits_; ++bit, ++count_) {
            if (count_ % 8 == 0)
                data_.push_back(0);
            data_.back() |= static_cast<std::uint8_t>((code >> bit & 1U) << count_ % 8);
        }
        if (code == anew) {
            bits_ = 3;
            entries_ = firstOwn - 1; // the first code behind it makes none
            return;
        }
        if (entries_ < 4096)
            ++entries_;
        if (entries_ == 1U << bits_ && bits_ < 12)
            ++bits_;
    }

    File file(std::uint8_t width, std::uint8_t height) const {
        File made{'G', 'I', 'F', '8', '7', 'a', width, 0, height, 0, 0x81, 0, 0};
        for (const int part : {0, 0, 0, 0xFF, 0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF})
            made.push_back(static_cast<std::uint8_t>(part));
        made.insert(made.end(), {0x2C, 0, 0, 0, 0, width, 0, height, 0, 0, 2});
        for (std::size_t at = 0; at < data_.size(); at += 255) {
            const std::size_t size = std::min<std::size_t>(255, data_.size() - at);
            made.push_back(static_cast<std::uint8_t>(size));
            made.insert(made.end(), data_.begin() + static_cast<std::ptrdiff_t>(at),
                        data_.begin() + static_cast<std::ptrdiff_t>(at + size));
        }
        made.insert(made.end(), {0, 0x3B});
        return made;
    }

  private:
    File data_;
    unsigned bits_ = 3;
    unsigned count_ = 0; ///< bits that have been written
    unsigned entries_ = firstOwn - 1;
};

} // namespace

TEST_SUITE_BEGIN("forms/gif");

TEST_CASE("a code stands for a colour, or for a row of them that has come before") {
    Written written;
    written.add(Written::anew);
    written.add(1);
    written.add(Written::firstOwn); // as it is made: red twice
    written.add(2);
    written.add(Written::firstOwn);
    const forms::Picture picture = forms::readGif(written.file(3, 2));
    REQUIRE(picture.width() == 3);
    REQUIRE(picture.height() == 2);
    const std::vector<std::uint32_t> pixels(picture.pixels().begin(), picture.pixels().end());
    CHECK(pixels == std::vector<std::uint32_t>{red, red, red, blue, red, red});
}

TEST_CASE("a full table of rows stays as it is until it begins anew") {
    constexpr unsigned side = 100; // 10,000 pixels, of which some 4,000 fill it
    Written written;
    written.add(Written::anew);
    for (unsigned pixel = 0; pixel < side * side; ++pixel) {
        if (pixel == 9'000)
            written.add(Written::anew);
        written.add(1 + pixel % 2);
    }
    const forms::Picture picture = forms::readGif(written.file(side, side));
    REQUIRE(picture.width() == static_cast<int>(side));
    CHECK(picture.pixel(0, 0) == red);
    bool alternate = true;
    for (std::size_t pixel = 0; pixel < picture.pixels().size(); ++pixel)
        alternate = alternate && picture.pixels()[pixel] == (pixel % 2 == 0 ? red : blue);
    CHECK(alternate);
}

TEST_CASE("a code that nothing is known of, or the end before the last pixel, gives no picture") {
    for (const unsigned code : {Written::end, Written::firstOwn, Written::firstOwn + 1}) {
        CAPTURE(code);
        Written written;
        written.add(Written::anew);
        written.add(code);
        CHECK(forms::readGif(written.file(1, 1)).empty());
    }
    CHECK(forms::readGif(Written().file(1, 1)).empty());
}

TEST_CASE("a file that ends too soon, or is another kind, gives no picture") {
    const File file = splashSquare();
    REQUIRE(forms::readGif(file).width() == 93);
    constexpr std::size_t end = 3; // bytes behind the pixels
    bool none = true;
    for (std::size_t size = 0; size < file.size() - end; size += 7)
        none = none && forms::readGif(std::span(file).first(size)).empty();
    CHECK(none);
    struct Change {
        const char* what;
        std::size_t place;
        std::uint8_t value;
    };
    constexpr std::size_t picture = 13 + 128 * 3; // behind the table of colours
    for (const Change& change : {Change{"version", 4, '9'},
                                 {"no table", 10, 0x06},
                                 {"no picture", picture, 0x21},
                                 {"from the left", picture + 1, 1},
                                 {"from the top", picture + 3, 1},
                                 {"width", picture + 5, 92},
                                 {"height", picture + 7, 92},
                                 {"rows in another order", picture + 9, 0x40},
                                 {"a colour of one bit", picture + 10, 1},
                                 {"a colour of nine bits", picture + 10, 9}}) {
        CAPTURE(change.what);
        File changed = file;
        changed[change.place] = change.value;
        CHECK(forms::readGif(changed).empty());
    }
}

TEST_CASE("a damaged file is read or not, without harm") {
    constexpr std::size_t version = 6;
    const File file = splashSquare();
    for (std::size_t place = version; place < file.size(); place += 7)
        for (const std::uint8_t value : {std::uint8_t{0}, std::uint8_t{0x7F}, std::uint8_t{0xFF}}) {
            File damaged = file;
            damaged[place] = value;
            const forms::Picture picture = forms::readGif(damaged);
            CHECK((picture.empty() || picture.width() == 93));
        }
}

TEST_SUITE_END();
