#include "forms/iconDirectory.h"

#include <algorithm>
#include <array>
#include <span>

namespace forms {

namespace {

constexpr std::array<unsigned char, 4> fileHead = {0, 0, 1, 0};
constexpr std::size_t headerSize = 6;
constexpr std::size_t countAt = 4;

/// An entry of a file is as long as one of a library up to this; then a file has its picture's place, a
/// library its number.
constexpr std::size_t sharedSize = 12;
constexpr std::size_t fileEntrySize = 16;
constexpr std::size_t libraryEntrySize = 14;
constexpr std::size_t bitsAt = 6; ///< of a pixel; 0 where the picture alone tells
constexpr std::size_t sizeAt = 8;
constexpr int widest = 256; ///< an entry begins with the width: 0 for this

/// A picture is a bitmap without the file's header, or a PNG file.
constexpr std::size_t bitmapHeaderSize = 40;
constexpr std::size_t bitmapBitsAt = 14;
constexpr std::array<unsigned char, 4> pngMark = {0x89, 'P', 'N', 'G'};
constexpr unsigned char pngBits = 32;

std::size_t wordAt(std::span<const unsigned char> bytes, std::size_t at) {
    return bytes[at] | std::size_t{bytes[at + 1]} << 8U;
}

std::size_t longAt(std::span<const unsigned char> bytes, std::size_t at) {
    return wordAt(bytes, at) | wordAt(bytes, at + 2) << 16U;
}

void addWord(IconDirectory& directory, std::size_t word) {
    directory.push_back(static_cast<unsigned char>(word & 0xFFU));
    directory.push_back(static_cast<unsigned char>(word >> 8U & 0xFFU));
}

bool standsAt(const IcoFile& file, std::size_t at, const std::array<unsigned char, 4>& mark) {
    return std::equal(mark.begin(), mark.end(), file.begin() + static_cast<std::ptrdiff_t>(at));
}

/// A picture and its entry, which begins at `at`, unless the picture is not there whole.
void addEntry(IconFilePictures& made, const IcoFile& file, std::size_t at) {
    const IconFilePictures::Place place{longAt(file, at + sharedSize), longAt(file, at + sizeAt)};
    if (place.size < bitmapHeaderSize || place.first > file.size() || place.size > file.size() - place.first)
        return;
    const std::size_t entry = made.directory.size();
    const auto first = file.begin() + static_cast<std::ptrdiff_t>(at);
    made.directory.insert(made.directory.end(), first, first + static_cast<std::ptrdiff_t>(sharedSize));
    if (wordAt(made.directory, entry + bitsAt) == 0)
        made.directory[entry + bitsAt] =
            standsAt(file, place.first, pngMark) ? pngBits : file[place.first + bitmapBitsAt];
    made.pictures.push_back(place);
    addWord(made.directory, made.pictures.size());
}

} // namespace

int bestIconSide(const IconDirectory& directory, int side) {
    if (directory.size() < headerSize)
        return side;
    std::vector<int> widths;
    const std::size_t count = wordAt(directory, countAt);
    for (std::size_t entry = 0; entry < count; ++entry) {
        const std::size_t at = headerSize + entry * libraryEntrySize;
        if (at >= directory.size())
            break;
        widths.push_back(directory[at] == 0 ? widest : directory[at]);
    }
    if (widths.empty())
        return side;
    std::ranges::sort(widths);
    const auto found = std::ranges::lower_bound(widths, side);
    return found == widths.end() ? widths.back() : *found;
}

std::optional<IconFilePictures> iconFilePictures(const IcoFile& file) {
    if (file.size() < headerSize || !standsAt(file, 0, fileHead))
        return std::nullopt;
    IconFilePictures made;
    made.directory.assign(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(countAt));
    addWord(made.directory, 0);
    const std::size_t count = wordAt(file, countAt);
    for (std::size_t entry = 0; entry < count; ++entry) {
        const std::size_t at = headerSize + entry * fileEntrySize;
        if (at + fileEntrySize > file.size())
            break;
        addEntry(made, file, at);
    }
    if (made.pictures.empty())
        return std::nullopt;
    made.directory[countAt] = static_cast<unsigned char>(made.pictures.size() & 0xFFU);
    made.directory[countAt + 1] = static_cast<unsigned char>(made.pictures.size() >> 8U & 0xFFU);
    return made;
}

} // namespace forms
