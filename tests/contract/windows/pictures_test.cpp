// The pictures of the splash, as the program reads them, beside what the system's own reader makes of them.
#include "forms/picture.h"
#include "win32/forms/bitmaps.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <objbase.h>
#include <olectl.h>

#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace {

constexpr const char* names[] = {"splashSquare", "splashWide", "splashSquare2", "splashWide2"};

std::vector<std::uint8_t> fileOf(const char* name) {
    const HRSRC found = FindResourceA(nullptr, name, "GIF");
    REQUIRE(found != nullptr);
    const auto* const first = static_cast<const std::uint8_t*>(LockResource(LoadResource(nullptr, found)));
    return {first, first + SizeofResource(nullptr, found)};
}

/// As the system reads it.
forms::Picture bySystem(const std::vector<std::uint8_t>& file) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, file.size());
    std::memcpy(GlobalLock(block), file.data(), file.size());
    GlobalUnlock(block);
    IStream* stream = nullptr;
    REQUIRE(CreateStreamOnHGlobal(block, TRUE, &stream) == S_OK);
    IPicture* read = nullptr;
    REQUIRE(OleLoadPicture(stream, 0, FALSE, IID_IPicture, reinterpret_cast<void**>(&read)) == S_OK);
    stream->Release();
    OLE_HANDLE handle = 0;
    REQUIRE(read->get_Handle(&handle) == S_OK);
    auto* const bitmap = static_cast<HBITMAP>(UIntToPtr(handle));
    BITMAP shape{};
    GetObjectA(bitmap, sizeof shape, &shape);
    BITMAPINFO layout = win32::bitmapLayout(shape.bmWidth, shape.bmHeight);
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(shape.bmWidth) *
                                      static_cast<std::size_t>(shape.bmHeight));
    const HDC screen = GetDC(nullptr);
    GetDIBits(screen, bitmap, 0, static_cast<UINT>(shape.bmHeight), pixels.data(), &layout, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    read->Release();
    for (std::uint32_t& pixel : pixels)
        pixel |= forms::opaque;
    return {shape.bmWidth, shape.bmHeight, std::move(pixels)};
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/pictures");

TEST_CASE("the program's pictures are read as the system reads them") {
    const HRESULT begun = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    for (const char* name : names) {
        CAPTURE(name);
        const forms::Picture picture = forms::loadPicture(name);
        REQUIRE(!picture.empty());
        const bool same = picture == bySystem(fileOf(name));
        CHECK(same);
    }
    if (SUCCEEDED(begun))
        CoUninitialize();
    CHECK(forms::loadPicture("noSuchPicture").empty());
}

TEST_SUITE_END();
