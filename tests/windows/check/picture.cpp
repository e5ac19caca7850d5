#include "check/picture.h"
#include "check/machine.h"
#include "check/workplace.h"

#include <objidl.h>

#include <gdiplus.h>

#include <set>

namespace picture {

// The pixels of a rectangle of the screen.
class Shot {
  public:
    explicit Shot(const RECT& place) : place_(place) {
        const HDC screen = GetDC(nullptr);
        dc_ = CreateCompatibleDC(screen);
        bitmap_ = CreateCompatibleBitmap(screen, width(), height());
        before_ = SelectObject(dc_, bitmap_);
        BitBlt(dc_, 0, 0, width(), height(), screen, place.left, place.top, SRCCOPY);
        ReleaseDC(nullptr, screen);
    }
    ~Shot() {
        SelectObject(dc_, before_);
        DeleteObject(bitmap_);
        DeleteDC(dc_);
    }
    Shot(const Shot&) = delete;
    Shot& operator=(const Shot&) = delete;

    [[nodiscard]] int width() const { return place_.right - place_.left; }
    [[nodiscard]] int height() const { return place_.bottom - place_.top; }
    [[nodiscard]] HDC dc() const { return dc_; }
    // Not to be used while the bitmap is drawn on.
    [[nodiscard]] HBITMAP bitmap() const { return bitmap_; }

    // A rectangle of the screen is made unreadable.
    void cover(RECT part) {
        OffsetRect(&part, -place_.left, -place_.top);
        FillRect(dc_, &part, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
    }

  private:
    RECT place_;
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ before_;
};

int colours(const RECT& place) {
    const Shot shot(place);
    std::set<COLORREF> seen;
    for (int y = 0; y < shot.height(); ++y) {
        for (int x = 0; x < shot.width(); ++x)
            seen.insert(GetPixel(shot.dc(), x, y));
    }
    return static_cast<int>(seen.size());
}

using GetAttribute = HRESULT(WINAPI*)(HWND, DWORD, void*, DWORD);

template <typename Value>
static bool attribute(HWND window, DWORD which, Value& value) {
    static const auto get = machine::routine<GetAttribute>(L"dwmapi.dll", "DwmGetWindowAttribute");
    return get && get(window, which, &value, sizeof value) == S_OK;
}

// The frame that is seen: since Windows 10 a window has borders beyond it that show what is behind.
static RECT frameOf(HWND window) {
    constexpr DWORD extendedFrameBounds = 9;
    RECT frame = {};
    if (!attribute(window, extendedFrameBounds, frame))
        GetWindowRect(window, &frame);
    return frame;
}

static bool seen(HWND window) {
    constexpr DWORD cloaked = 14;
    DWORD reason = 0;
    return IsWindowVisible(window) && !(attribute(window, cloaked, reason) && reason != 0);
}

static bool writePng(const Shot& shot, const std::wstring& path) {
    constexpr CLSID png = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok)
        return false;
    bool written = false;
    {
        Gdiplus::Bitmap bitmap(shot.bitmap(), nullptr);
        written = bitmap.Save(path.c_str(), &png, nullptr) == Gdiplus::Ok;
    }
    Gdiplus::GdiplusShutdown(token);
    return written;
}

bool save(HWND window, const std::wstring& path) {
    const RECT frame = frameOf(window);
    Shot shot(frame);
    for (HWND above = GetWindow(window, GW_HWNDPREV); above; above = GetWindow(above, GW_HWNDPREV)) {
        RECT covered;
        const RECT place = frameOf(above);
        if (seen(above) && !workplace::isOurs(above) && IntersectRect(&covered, &place, &frame))
            shot.cover(covered);
    }
    return writePng(shot, path);
}

} // namespace picture
