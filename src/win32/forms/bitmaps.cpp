#include "win32/forms/bitmaps.h"

#include <cstdint>
#include <cstring>
#include <vector>

namespace win32 {

BITMAPINFO bitmapLayout(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

HBITMAP makeBitmap(int width, int height, std::uint32_t*& pixels) {
    const BITMAPINFO info = bitmapLayout(width, height);
    void* memory = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0);
    pixels = static_cast<std::uint32_t*>(memory);
    return bitmap;
}

HBITMAP bitmapOf(const forms::Picture& picture) {
    std::uint32_t* pixels = nullptr;
    const HBITMAP bitmap = makeBitmap(picture.width(), picture.height(), pixels);
    if (pixels != nullptr)
        std::memcpy(pixels, picture.pixels().data(), picture.pixels().size_bytes());
    return bitmap;
}

HICON iconOf(const forms::Picture& picture) {
    // One bit a pixel, rows of whole words, all zero: the opacity alone decides.
    constexpr int wordBits = 16;
    const auto words = static_cast<std::size_t>((picture.width() + wordBits - 1) / wordBits);
    const std::vector<std::uint16_t> nothing(words * static_cast<std::size_t>(picture.height()));
    const HBITMAP mask = CreateBitmap(picture.width(), picture.height(), 1, 1, nothing.data());
    const HBITMAP colours = bitmapOf(picture);
    ICONINFO info{TRUE, 0, 0, mask, colours};
    const HICON icon = CreateIconIndirect(&info);
    DeleteObject(colours);
    DeleteObject(mask);
    return icon;
}

namespace {

/// Bits of a monochrome bitmap, rows from the top, each a whole number of words; the leftmost pixel is the
/// highest bit.
class Bits {
  public:
    Bits(int width, int height)
        : width_(width), height_(height), stride_((width + 15) / 16 * 2),
          bytes_(static_cast<std::size_t>(stride_) * static_cast<std::size_t>(height)) {}

    void set(int x, int y) {
        const auto row = static_cast<std::size_t>(stride_) * static_cast<std::size_t>(y);
        bytes_[row + static_cast<std::size_t>(x / 8)] |= static_cast<std::uint8_t>(0x80 >> x % 8);
    }
    /// The caller's to delete.
    HBITMAP bitmap() const { return CreateBitmap(width_, height_, 1, 1, bytes_.data()); }

  private:
    int width_;
    int height_;
    int stride_;
    std::vector<std::uint8_t> bytes_;
};

} // namespace

HIMAGELIST nativeImageList(const forms::ImageList& list) {
    const int width = list.pictureWidth();
    const int height = list.pictureHeight();
    const int count = list.count();
    // The mask is for a picture that is clear all over: its alpha, 0 everywhere, counts as none, and without
    // a mask it would be a black square.
    const HIMAGELIST made = ImageList_Create(width, height, ILC_COLOR32 | ILC_MASK, count, 1);
    if (made == nullptr || count == 0)
        return made;
    // All pictures side by side: one call instead of one for each.
    std::uint32_t* strip = nullptr;
    const HBITMAP bitmap = makeBitmap(width * count, height, strip);
    Bits clearBits(width * count, height);
    bool complete = false;
    if (strip != nullptr) {
        constexpr std::uint32_t colourBits = 0x00FFFFFF;
        int number = 0;
        for (const forms::ListImage& image : list.images()) {
            const auto pixels = image.picture.pixels();
            for (std::size_t index = 0; index < pixels.size(); ++index) {
                const int x = number * width + static_cast<int>(index) % width;
                const int y = static_cast<int>(index) / width;
                const std::uint32_t colour = pixels[index] & colourBits;
                const bool clear = colour == list.maskColour || pixels[index] >> 24 == 0;
                strip[y * width * count + x] = clear ? 0 : forms::opaque | colour;
                if (clear)
                    clearBits.set(x, y);
            }
            ++number;
        }
        const HBITMAP mask = clearBits.bitmap();
        complete = mask != nullptr && ImageList_Add(made, bitmap, mask) >= 0;
        DeleteObject(mask);
    }
    DeleteObject(bitmap);
    if (complete)
        return made;
    ImageList_Destroy(made);
    return nullptr;
}

} // namespace win32
