#include "win32/platform/iconSizes.h"

#include "win32/common/owned.h"
#include "win32/forms/bitmaps.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace win32 {

namespace {

struct Search {
    std::int32_t left; ///< icons to be passed over
    HRSRC found = nullptr;
};

BOOL CALLBACK lookAtIcon(HMODULE library, LPCWSTR type, LPWSTR name, LONG_PTR search) {
    auto& asked = *reinterpret_cast<Search*>(search);
    if (asked.left-- > 0)
        return TRUE;
    asked.found = FindResourceW(library, name, type);
    return FALSE;
}

/// An icon's pixels with their opacity, whether it has that itself or by a mask.
forms::Picture pictureOf(HICON icon) {
    ICONINFO info{};
    if (GetIconInfo(icon, &info) == FALSE)
        return {};
    const Owned<HBITMAP> colourBitmap(info.hbmColor);
    const Owned<HBITMAP> maskBitmap(info.hbmMask);
    BITMAP shape{};
    std::vector<std::uint32_t> colours;
    std::vector<std::uint32_t> mask;
    if (info.hbmColor != nullptr && GetObjectW(info.hbmColor, sizeof shape, &shape) != 0) {
        BITMAPINFO layout = bitmapLayout(shape.bmWidth, shape.bmHeight);
        const auto count = static_cast<std::size_t>(shape.bmWidth) * static_cast<std::size_t>(shape.bmHeight);
        colours.resize(count);
        mask.resize(count);
        const HDC screen = GetDC(nullptr);
        const auto rows = static_cast<UINT>(shape.bmHeight);
        GetDIBits(screen, info.hbmColor, 0, rows, colours.data(), &layout, DIB_RGB_COLORS);
        layout = bitmapLayout(shape.bmWidth, shape.bmHeight);
        GetDIBits(screen, info.hbmMask, 0, rows, mask.data(), &layout, DIB_RGB_COLORS);
        ReleaseDC(nullptr, screen);
    }
    constexpr std::uint32_t colourBits = 0x00FFFFFF;
    const bool bare = std::ranges::none_of(colours, [](std::uint32_t pixel) { return pixel >> 24U != 0; });
    for (std::size_t place = 0; bare && place < colours.size(); ++place)
        colours[place] = (mask[place] & colourBits) != 0 ? 0 : forms::opaque | colours[place];
    return colours.empty() ? forms::Picture() : forms::Picture(shape.bmWidth, shape.bmHeight, colours);
}

} // namespace

forms::IconDirectory directoryInLibrary(const std::wstring& path, std::int32_t index) {
    const Owned<HMODULE> loaded(LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE));
    const HMODULE library = loaded.get();
    if (library == nullptr)
        return {};
    Search search{index};
    EnumResourceNamesW(library, reinterpret_cast<LPCWSTR>(RT_GROUP_ICON), lookAtIcon,
                       reinterpret_cast<LONG_PTR>(&search));
    forms::IconDirectory directory;
    const HGLOBAL resource = search.found == nullptr ? nullptr : LoadResource(library, search.found);
    if (const void* memory = resource == nullptr ? nullptr : LockResource(resource)) {
        const auto* first = static_cast<const unsigned char*>(memory);
        directory.assign(first, first + SizeofResource(library, search.found));
    }
    return directory;
}

HICON scaledIcon(HICON icon, int side) {
    const forms::Picture picture = pictureOf(icon);
    return picture.empty() ? nullptr : iconOf(picture.scaled(side, side));
}

} // namespace win32
