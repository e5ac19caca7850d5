#include "win32/forms/bitmaps.h"

#include <cstdint>
#include <cstring>

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

HIMAGELIST nativeImageList(const forms::ImageList& list) {
    const int width = list.imageWidth;
    const int height = list.imageHeight;
    const int count = list.count();
    const HIMAGELIST made = ImageList_Create(width, height, ILC_COLOR32, count, 1);
    if (count == 0)
        return made;
    // All pictures side by side: one call instead of one for each.
    std::uint32_t* strip = nullptr;
    const HBITMAP bitmap = makeBitmap(width * count, height, strip);
    if (strip != nullptr) {
        constexpr std::uint32_t colourBits = 0x00FFFFFF;
        constexpr std::uint32_t opaque = 0xFF000000;
        int number = 0;
        for (const forms::ListImage& image : list.images()) {
            const auto pixels = image.picture.pixels();
            for (std::size_t index = 0; index < pixels.size(); ++index) {
                const auto x = static_cast<int>(index) % width;
                const auto y = static_cast<int>(index) / width;
                const std::uint32_t colour = pixels[index] & colourBits;
                const bool clear = colour == list.maskColour || pixels[index] >> 24 == 0;
                strip[y * width * count + number * width + x] = clear ? 0 : opaque | colour;
            }
            ++number;
        }
        ImageList_Add(made, bitmap, nullptr);
    }
    DeleteObject(bitmap);
    return made;
}

} // namespace win32
