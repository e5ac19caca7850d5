// An image list: pictures of one size, numbered from 1, some with a key.
#pragma once

#include "forms/picture.h"
#include "forms/units.h"

#include <string>
#include <string_view>
#include <vector>

namespace forms {

struct ListImage {
    std::string key; ///< empty for none
    Picture picture; ///< fitted to the list's size
    Picture whole;   ///< as it was added
};

class ImageList {
  public:
    ImageList() = default;
    ImageList(const ImageList&) = delete;
    ImageList& operator=(const ImageList&) = delete;

    /// Pixels of the design. A change drops nothing: it applies to pictures that are added from then on.
    int imageWidth = 16;
    int imageHeight = 16;
    /// That of the form that shows the pictures; they are fitted to it anew.
    void setResolution(Resolution resolution);
    /// Pixels that a picture has there.
    int pictureWidth() const { return resolution_.scaled(imageWidth); }
    int pictureHeight() const { return resolution_.scaled(imageHeight); }
    /// Pixels of exactly this colour show nothing.
    Colour maskColour = maskGrey;

    /// Gives the memory back as well: braces alone would keep it.
    void clear() { images_ = std::vector<ListImage>(); }
    /// Inserts a picture as number `index`, 0 for the end, shifting those behind it. Error 9 for a number
    /// below 0 or one that would leave a gap, error 35602 for a key that is there already.
    void add(int index, std::string_view key, const Picture& picture);
    int count() const { return static_cast<int>(images_.size()); }
    const std::vector<ListImage>& images() const { return images_; }
    /// Number of the picture with this key. Error 9 if there is none.
    int indexOf(std::string_view key) const;
    /// Error 9 if there is none.
    const Picture& picture(std::string_view key) const;
    const Picture& picture(int index) const;

  private:
    Picture fitted(const Picture& picture) const;

    Resolution resolution_;
    std::vector<ListImage> images_;
};

} // namespace forms
