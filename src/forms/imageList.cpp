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
    Picture fitted = picture.fitted(imageWidth, imageHeight);
    // Rows without an icon of their own look like the one before: one block of pixels does for all of them.
    if (place > 0)
        if (const Picture& before = images_[static_cast<std::size_t>(place) - 1].picture; before == fitted)
            fitted = before;
    images_.insert(images_.begin() + place, {std::string(key), std::move(fitted)});
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
