#include "forms/imageList.h"

#include "runtime/runtimeError.h"

#include <algorithm>
#include <utility>

namespace forms {

namespace {

[[noreturn]] void noSuchImage() {
    throw runtime::RuntimeError(runtime::ErrorNumber::subscriptOutOfRange);
}

auto findKey(const std::vector<ListImage>& images, std::string_view key) {
    // No key is no key to be found by.
    if (key.empty())
        return images.end();
    return std::find_if(images.begin(), images.end(),
                        [key](const ListImage& image) { return image.key == key; });
}

} // namespace

void ImageList::add(int index, std::string_view key, const Picture& picture) {
    if (index < 0 || index > count() + 1)
        noSuchImage();
    if (findKey(images_, key) != images_.end())
        throw runtime::RuntimeError(runtime::ErrorNumber::keyNotUnique);
    const int place = index == 0 ? count() : index - 1;
    ListImage added{std::string(key), fitted(picture), picture};
    // Rows without an icon of their own look like the one before: one block of pixels does for all of them.
    if (place > 0) {
        const ListImage& before = images_[static_cast<std::size_t>(place) - 1];
        if (before.picture == added.picture)
            added.picture = before.picture;
        if (before.whole == added.whole)
            added.whole = before.whole;
    }
    images_.insert(images_.begin() + place, std::move(added));
}

void ImageList::setResolution(Resolution resolution) {
    if (resolution == resolution_)
        return;
    resolution_ = resolution;
    for (ListImage& image : images_)
        image.picture = fitted(image.whole);
}

/// A picture that is to grow keeps its outline: what shows nothing is not mixed with what shows.
Picture ImageList::fitted(const Picture& picture) const {
    if (picture.width() >= pictureWidth() || picture.height() >= pictureHeight())
        return picture.fitted(pictureWidth(), pictureHeight());
    std::vector<std::uint32_t> pixels(picture.pixels().begin(), picture.pixels().end());
    for (std::uint32_t& pixel : pixels)
        if ((pixel & ~opaque) == maskColour)
            pixel = 0;
    const Picture grown =
        Picture(picture.width(), picture.height(), std::move(pixels)).fitted(pictureWidth(), pictureHeight());
    pixels.assign(grown.pixels().begin(), grown.pixels().end());
    constexpr std::uint32_t halfOpaque = 0x80000000;
    for (std::uint32_t& pixel : pixels)
        pixel = opaque | (pixel >= halfOpaque ? pixel : maskColour);
    return {grown.width(), grown.height(), std::move(pixels)};
}

int ImageList::indexOf(std::string_view key) const {
    const auto found = findKey(images_, key);
    if (found == images_.end())
        noSuchImage();
    return static_cast<int>(found - images_.begin()) + 1;
}

const Picture& ImageList::picture(std::string_view key) const {
    return picture(indexOf(key));
}

const Picture& ImageList::picture(int index) const {
    if (index < 1 || index > count())
        noSuchImage();
    return images_[static_cast<std::size_t>(index - 1)].picture;
}

} // namespace forms
