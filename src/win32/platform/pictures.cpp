// The pictures that the program carries as resources: GIF files, read by the system.
#include "forms/picture.h"

#include "win32/forms/bitmaps.h"

#include <windows.h>

#include <objbase.h>
#include <olectl.h>

#include <string>
#include <vector>

namespace {

/// A resource's bytes as a stream; null on failure. The caller's to release.
IStream* streamOf(const std::string& name) {
    const HRSRC found = FindResourceA(nullptr, name.c_str(), "GIF");
    const HGLOBAL loaded = found == nullptr ? nullptr : LoadResource(nullptr, found);
    const void* bytes = loaded == nullptr ? nullptr : LockResource(loaded);
    if (bytes == nullptr)
        return nullptr;
    const DWORD size = SizeofResource(nullptr, found);
    const HGLOBAL copy = GlobalAlloc(GMEM_MOVEABLE, size);
    if (copy == nullptr)
        return nullptr;
    void* const target = GlobalLock(copy);
    if (target != nullptr)
        CopyMemory(target, bytes, size);
    GlobalUnlock(copy);
    IStream* stream = nullptr;
    if (target == nullptr || FAILED(CreateStreamOnHGlobal(copy, TRUE, &stream))) {
        GlobalFree(copy);
        return nullptr;
    }
    return stream;
}

forms::Picture pixelsOf(HBITMAP bitmap) {
    BITMAP shape{};
    if (GetObjectA(bitmap, sizeof shape, &shape) == 0)
        return {};
    BITMAPINFO layout = win32::bitmapLayout(shape.bmWidth, shape.bmHeight);
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(shape.bmWidth) *
                                      static_cast<std::size_t>(shape.bmHeight));
    const HDC screen = GetDC(nullptr);
    const int rows = GetDIBits(screen, bitmap, 0, static_cast<UINT>(shape.bmHeight), pixels.data(), &layout,
                               DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    if (rows != shape.bmHeight)
        return {};
    for (std::uint32_t& pixel : pixels)
        pixel |= forms::opaque;
    return {shape.bmWidth, shape.bmHeight, std::move(pixels)};
}

} // namespace

namespace forms {

Picture loadPicture(std::string_view name) {
    IStream* const stream = streamOf(std::string(name));
    if (stream == nullptr)
        return {};
    IPicture* read = nullptr;
    Picture picture;
    OLE_HANDLE handle = 0;
    if (SUCCEEDED(OleLoadPicture(stream, 0, FALSE, IID_IPicture, reinterpret_cast<void**>(&read)))) {
        if (SUCCEEDED(read->get_Handle(&handle)))
            picture = pixelsOf(reinterpret_cast<HBITMAP>(static_cast<std::uintptr_t>(handle)));
        read->Release();
    }
    stream->Release();
    return picture;
}

} // namespace forms
