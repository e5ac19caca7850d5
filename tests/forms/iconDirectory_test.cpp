// What is read of the pictures in .ico files and libraries, and what of bytes that only look like one.
#include "forms/iconDirectory.h"

#include <doctest/doctest.h>

#include <initializer_list>
#include <vector>

using forms::bestIconSide;
using forms::IcoFile;
using forms::IconDirectory;
using forms::iconFilePictures;

namespace {

constexpr std::size_t header = 6;
constexpr std::size_t fileEntry = 16;
constexpr std::size_t pictureSize = 40;

void put(std::vector<unsigned char>& bytes, std::size_t value, int length) {
    for (int byte = 0; byte < length; ++byte)
        bytes.push_back(static_cast<unsigned char>(value >> (8U * static_cast<unsigned>(byte)) & 0xFFU));
}

/// One picture of a file that is made.
struct Made {
    unsigned char width;
    std::size_t bits = 0; ///< as its entry tells
    std::size_t size = pictureSize;
    std::vector<unsigned char> begins = {40, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 24};
};

/// The pictures stand behind the entries in the same order, each in as many bytes as it needs.
IcoFile file(std::initializer_list<Made> pictures) {
    IcoFile bytes = {0, 0, 1, 0};
    put(bytes, pictures.size(), 2);
    std::size_t place = header + pictures.size() * fileEntry;
    for (const Made& picture : pictures) {
        bytes.insert(bytes.end(), {picture.width, picture.width, 0, 0, 1, 0});
        put(bytes, picture.bits, 2);
        put(bytes, picture.size, 4);
        put(bytes, place, 4);
        place += pictureSize;
    }
    for (const Made& picture : pictures) {
        const std::size_t begin = bytes.size();
        bytes.insert(bytes.end(), picture.begins.begin(), picture.begins.end());
        bytes.resize(begin + pictureSize);
    }
    return bytes;
}

/// As it stands in a library: the widths of so many pictures.
IconDirectory library(std::initializer_list<unsigned char> widths) {
    IconDirectory bytes = {0, 0, 1, 0};
    put(bytes, widths.size(), 2);
    for (const unsigned char width : widths) {
        bytes.push_back(width);
        bytes.resize(bytes.size() + 13);
    }
    return bytes;
}

} // namespace

TEST_SUITE_BEGIN("forms/iconDirectory");

TEST_CASE("a file's pictures are numbered as in a library, with the bits that they have themselves") {
    const auto found = iconFilePictures(file({{16}, {32, 8}, {0, 0, pictureSize, {0x89, 'P', 'N', 'G'}}}));
    REQUIRE(found);
    REQUIRE(found->pictures.size() == 3);
    CHECK(found->pictures[0].first == header + 3 * fileEntry);
    CHECK(found->pictures[2].first == header + 3 * fileEntry + 2 * pictureSize);
    CHECK(found->pictures[2].size == pictureSize);
    CHECK(found->directory == IconDirectory{0,  0,  1, 0, 3, 0,                           //
                                            16, 16, 0, 0, 1, 0, 24, 0, 40, 0, 0, 0, 1, 0, //
                                            32, 32, 0, 0, 1, 0, 8,  0, 40, 0, 0, 0, 2, 0, //
                                            0,  0,  0, 0, 1, 0, 32, 0, 40, 0, 0, 0, 3, 0});
}

TEST_CASE("a picture that does not stand in the file whole is left out") {
    for (const std::size_t size : {std::size_t{39}, 2 * pictureSize + 1, std::size_t{0xFFFFFFFF}}) {
        CAPTURE(size);
        const auto found = iconFilePictures(file({{16, 0, size}, {32}}));
        REQUIRE(found);
        CHECK(found->pictures.size() == 1);
        CHECK(found->directory.size() == header + 14);
        CHECK(found->directory[4] == 1);
        CHECK(found->directory[header] == 32);
    }
    const IcoFile whole = file({{16}});
    IcoFile begins = whole;
    begins[header + 12] = 200; // behind the end
    CHECK_FALSE(iconFilePictures(begins));
    begins[header + 12] = static_cast<unsigned char>(begins.size()); // at the end
    CHECK_FALSE(iconFilePictures(begins));
    IcoFile shorter = whole;
    shorter.pop_back();
    CHECK_FALSE(iconFilePictures(shorter));
    CHECK(iconFilePictures(whole));
}

TEST_CASE("a file that tells of more pictures than it has gives those that are there") {
    IcoFile more = file({{16}, {32}});
    more[5] = 1; // 258
    const auto found = iconFilePictures(more);
    REQUIRE(found);
    CHECK(found->pictures.size() >= 2);
    CHECK(found->directory[5] == 0);
}

TEST_CASE("more pictures than a byte counts") {
    IcoFile many = file({{16}});
    many[4] = 300 & 0xFF;
    many[5] = 300 >> 8;
    const std::vector<unsigned char> entry(many.begin() + header, many.begin() + header + fileEntry);
    for (int more = 1; more < 300; ++more)
        many.insert(many.begin() + header, entry.begin(), entry.end());
    const auto found = iconFilePictures(many);
    REQUIRE(found);
    CHECK(found->pictures.size() == 300);
    CHECK(found->directory[4] == (300 & 0xFF));
    CHECK(found->directory[5] == 300 >> 8);
    CHECK(found->directory.end()[-1] == 300 >> 8);
}

TEST_CASE("what is no icon file has no pictures") {
    CHECK_FALSE(iconFilePictures({}));
    CHECK_FALSE(iconFilePictures({0, 0, 1, 0, 0}));
    CHECK_FALSE(iconFilePictures({0, 0, 1, 0, 0, 0}));
    CHECK_FALSE(iconFilePictures({0, 0, 1, 0, 1, 0}));
    IcoFile cursor = file({{16}});
    cursor[2] = 2;
    CHECK_FALSE(iconFilePictures(cursor));
}

TEST_CASE("the best picture is the smallest that is not smaller, else the largest") {
    const IconDirectory directory = library({48, 16, 0, 32});
    CHECK(bestIconSide(directory, 8) == 16);
    CHECK(bestIconSide(directory, 16) == 16);
    CHECK(bestIconSide(directory, 17) == 32);
    CHECK(bestIconSide(directory, 49) == 256);
    CHECK(bestIconSide(directory, 257) == 256);
    CHECK(bestIconSide(library({16, 24}), 32) == 24);
}

TEST_CASE("a directory that does not tell leaves the side") {
    CHECK(bestIconSide({}, 20) == 20);
    CHECK(bestIconSide({0, 0, 1, 0, 1}, 20) == 20);
    CHECK(bestIconSide(library({}), 20) == 20);
    CHECK(bestIconSide({0, 0, 1, 0, 9, 1}, 20) == 20);
    CHECK(bestIconSide({0, 0, 1, 0, 9, 1, 16}, 20) == 16);
}

TEST_SUITE_END();
