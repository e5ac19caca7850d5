#include "win32/forms/paintedPeer.h"

#include "win32/forms/bitmaps.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace win32 {

namespace {

/// One pixel over another that is opaque, both 0xAARRGGBB.
std::uint32_t over(std::uint32_t pixel, std::uint32_t behind) {
    constexpr std::uint32_t full = 255;
    const std::uint32_t opacity = pixel >> 24;
    std::uint32_t mixed = 0;
    for (unsigned shift = 0; shift < 24; shift += 8) {
        const std::uint32_t front = pixel >> shift & 0xFFU;
        const std::uint32_t back = behind >> shift & 0xFFU;
        mixed |= (front * opacity + back * (full - opacity) + full / 2) / full << shift;
    }
    return mixed;
}

} // namespace

void PaintedPeer::changed(forms::Property property) {
    WindowPeer::changed(property);
    const bool shows = property == forms::Property::picture || property == forms::Property::position;
    // What is hidden is painted when it comes to be seen; a toolbar draws each of its icons on such a window.
    if (shows && handle() != nullptr && control().visible())
        InvalidateRect(handle(), nullptr, FALSE);
}

LRESULT PaintedPeer::message(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
    case WM_PRINTCLIENT: {
        RECT area;
        GetClientRect(handle(), &area);
        if (message == WM_PRINTCLIENT) {
            paint(reinterpret_cast<HDC>(wParam), area);
            return 0;
        }
        PAINTSTRUCT painting;
        const HDC dc = BeginPaint(handle(), &painting);
        paint(dc, area);
        EndPaint(handle(), &painting);
        return 0;
    }
    default:
        return defaultMessage(message, wParam, lParam);
    }
}

void paintPicture(HDC dc, const RECT& area, const forms::Picture& picture, COLORREF behind) {
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    if (width <= 0 || height <= 0)
        return;
    const std::uint32_t back = std::uint32_t{GetRValue(behind)} << 16 |
                               std::uint32_t{GetGValue(behind)} << 8 | std::uint32_t{GetBValue(behind)};
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                                      back);
    for (int y = 0; y < std::min(height, picture.height()); ++y)
        for (int x = 0; x < std::min(width, picture.width()); ++x)
            pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                   static_cast<std::size_t>(x)] = over(picture.pixel(x, y), back);
    const BITMAPINFO layout = bitmapLayout(width, height);
    SetDIBitsToDevice(dc, area.left, area.top, static_cast<DWORD>(width), static_cast<DWORD>(height), 0, 0, 0,
                      static_cast<UINT>(height), pixels.data(), &layout, DIB_RGB_COLORS);
}

} // namespace win32
