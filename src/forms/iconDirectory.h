// What an .ico file or an icon in a library tells of its pictures. The bytes come from files of the user's:
// nothing in them is sure.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace forms {

/// The content of a file in the ICO format, or of what passes for one.
using IcoFile = std::vector<unsigned char>;

/// A header with the number of pictures, then an entry for each, as they stand in a library.
using IconDirectory = std::vector<unsigned char>;

/// The width of the picture that is best for an icon of `side` pixels: the smallest that is not smaller, else
/// the largest that there is. `side` itself if the directory does not tell.
int bestIconSide(const IconDirectory& directory, int side);

/// What is in an .ico file.
struct IconFilePictures {
    /// Where a picture stands in the file, all of it.
    struct Place {
        std::size_t first;
        std::size_t size;
    };

    IconDirectory directory; ///< as it would stand in a library; it numbers the pictures from 1
    std::vector<Place> pictures;
};

/// Nothing if the file is none of that format, or no picture stands in it whole.
std::optional<IconFilePictures> iconFilePictures(const IcoFile& file);

} // namespace forms
