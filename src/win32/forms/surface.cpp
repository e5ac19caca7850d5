// The drawing surface in memory: a 32-bit bitmap selected into a device context.
#include "forms/surface.h"

#include "win32/forms/bitmaps.h"

#include <windows.h>

#include <cstddef>
#include <vector>

namespace forms {

struct Surface::Impl {
    int width;
    int height;
    HDC dc;
    HBITMAP bitmap;
    HGDIOBJ former;
    std::uint32_t* pixels;

    std::size_t count() const { return static_cast<std::size_t>(width) * static_cast<std::size_t>(height); }
};

Surface::Surface(int width, int height, Colour colour) : impl_(std::make_unique<Impl>()) {
    impl_->width = width;
    impl_->height = height;
    impl_->dc = CreateCompatibleDC(nullptr);
    impl_->bitmap = win32::makeBitmap(width, height, impl_->pixels);
    impl_->former = SelectObject(impl_->dc, impl_->bitmap);
    clear(colour);
}

Surface::~Surface() {
    SelectObject(impl_->dc, impl_->former);
    DeleteObject(impl_->bitmap);
    DeleteDC(impl_->dc);
}

platform::HDC Surface::dc() const {
    return platform::HDC{reinterpret_cast<std::uintptr_t>(impl_->dc)};
}

void Surface::clear(Colour colour) {
    if (impl_->pixels == nullptr)
        return;
    GdiFlush();
    for (std::size_t index = 0; index < impl_->count(); ++index)
        impl_->pixels[index] = colour;
}

Picture Surface::copy() const {
    if (impl_->pixels == nullptr)
        return {};
    GdiFlush();
    std::vector<std::uint32_t> pixels(impl_->pixels, impl_->pixels + impl_->count());
    for (std::uint32_t& pixel : pixels)
        pixel |= forms::opaque;
    return {impl_->width, impl_->height, std::move(pixels)};
}

} // namespace forms
