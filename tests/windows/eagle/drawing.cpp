#include "eagle/drawing.h"

#include <array>
#include <initializer_list>

namespace drawing {

using kinds::Kind;

// The drawings are made on a sheet of this size, which is fitted into the canvas.
static constexpr int sheetWidth = 800;
static constexpr int sheetHeight = 500;

static constexpr COLORREF copperTop = RGB(200, 40, 40);
static constexpr COLORREF copperBottom = RGB(50, 70, 210);
static constexpr COLORREF padGreen = RGB(40, 160, 60);
static constexpr COLORREF silk = RGB(190, 190, 190);
static constexpr COLORREF symbolRed = RGB(150, 30, 30);
static constexpr COLORREF netGreen = RGB(30, 130, 40);

// A pen and a brush for as long as a group of shapes is drawn.
class Tools {
  public:
    Tools(HDC dc, COLORREF color, int width, bool filled)
        : dc_(dc), pen_(CreatePen(PS_SOLID, width, color)), brush_(CreateSolidBrush(color)) {
        oldPen_ = SelectObject(dc, pen_);
        oldBrush_ = SelectObject(dc, filled ? static_cast<HGDIOBJ>(brush_) : GetStockObject(NULL_BRUSH));
    }
    ~Tools() {
        SelectObject(dc_, oldPen_);
        SelectObject(dc_, oldBrush_);
        DeleteObject(pen_);
        DeleteObject(brush_);
    }
    Tools(const Tools&) = delete;
    Tools& operator=(const Tools&) = delete;

  private:
    HDC dc_;
    HPEN pen_;
    HBRUSH brush_;
    HGDIOBJ oldPen_ = nullptr;
    HGDIOBJ oldBrush_ = nullptr;
};

static void line(HDC dc, std::initializer_list<POINT> points) {
    Polyline(dc, points.begin(), static_cast<int>(points.size()));
}

static void label(HDC dc, int x, int y, COLORREF color, const wchar_t* words) {
    SetTextColor(dc, color);
    SetBkMode(dc, TRANSPARENT);
    TextOutW(dc, x, y, words, lstrlenW(words));
}

static void grid(HDC dc, const RECT& area, COLORREF color) {
    for (int y = area.top; y < area.bottom; y += 20) {
        for (int x = area.left; x < area.right; x += 20)
            SetPixelV(dc, x, y, color);
    }
}

// Two rows of pads, an integrated circuit seen from above.
static void chip(HDC dc, int x, int y, int pins, COLORREF pad) {
    {
        const Tools outline(dc, silk, 2, false);
        Rectangle(dc, x, y, x + pins * 24, y + 60);
        Arc(dc, x - 10, y + 20, x + 10, y + 40, x, y + 40, x, y + 20);
    }
    const Tools pads(dc, pad, 1, true);
    for (int i = 0; i < pins; ++i) {
        Ellipse(dc, x + 4 + i * 24, y - 18, x + 20 + i * 24, y - 2);
        Ellipse(dc, x + 4 + i * 24, y + 62, x + 20 + i * 24, y + 78);
    }
}

static void board(HDC dc) {
    {
        const Tools edge(dc, silk, 1, false);
        Rectangle(dc, 60, 40, 740, 460);
    }
    {
        const Tools bottom(dc, copperBottom, 5, false);
        line(dc, {{192, 290}, {192, 400}, {620, 400}, {620, 330}});
        line(dc, {{120, 200}, {90, 230}, {90, 430}, {560, 430}, {700, 300}, {700, 120}});
    }
    {
        const Tools top(dc, copperTop, 5, false);
        line(dc, {{132, 132}, {132, 90}, {520, 90}, {552, 122}});
        line(dc, {{240, 290}, {270, 320}, {400, 320}, {430, 290}, {504, 290}});
        line(dc, {{312, 200}, {400, 200}, {432, 232}, {600, 232}, {624, 208}});
    }
    chip(dc, 120, 150, 8, padGreen);
    chip(dc, 120, 230, 8, padGreen);
    chip(dc, 480, 130, 7, padGreen);
    chip(dc, 480, 250, 7, padGreen);
    label(dc, 200, 165, silk, L"IC1");
    label(dc, 200, 245, silk, L"IC2");
    label(dc, 550, 145, silk, L"IC3");
    label(dc, 550, 265, silk, L"X1");
}

static void symbol(HDC dc, int x, int y, const wchar_t* name, const wchar_t* value) {
    const Tools outline(dc, symbolRed, 2, false);
    Rectangle(dc, x, y, x + 120, y + 160);
    for (int pin = 0; pin < 4; ++pin) {
        line(dc, {{x - 30, y + 30 + pin * 35}, {x, y + 30 + pin * 35}});
        line(dc, {{x + 120, y + 30 + pin * 35}, {x + 150, y + 30 + pin * 35}});
    }
    label(dc, x, y - 20, RGB(90, 90, 90), name);
    label(dc, x, y + 164, RGB(90, 90, 90), value);
}

static void schematic(HDC dc) {
    {
        const Tools frame(dc, RGB(120, 120, 120), 1, false);
        Rectangle(dc, 20, 20, 780, 480);
        Rectangle(dc, 560, 430, 780, 480);
    }
    label(dc, 570, 446, RGB(90, 90, 90), L"demo  1/1");
    symbol(dc, 150, 120, L"IC1", L"74HC14");
    symbol(dc, 500, 170, L"IC2", L"NE555");
    {
        const Tools resistor(dc, symbolRed, 2, false);
        Rectangle(dc, 360, 140, 420, 160);
        Rectangle(dc, 90, 340, 110, 400);
    }
    const Tools nets(dc, netGreen, 2, false);
    line(dc, {{300, 150}, {360, 150}});
    line(dc, {{420, 150}, {450, 150}, {450, 200}, {470, 200}});
    line(dc, {{300, 185}, {400, 185}, {400, 235}, {470, 235}});
    line(dc, {{120, 255}, {100, 255}, {100, 340}});
    line(dc, {{100, 400}, {100, 440}, {440, 440}, {440, 305}, {470, 305}});
}

static void library(HDC dc) {
    {
        const Tools pads(dc, copperTop, 1, true);
        for (int i = 0; i < 7; ++i) {
            Rectangle(dc, 190 + i * 64, 110, 226 + i * 64, 180);
            Rectangle(dc, 190 + i * 64, 320, 226 + i * 64, 390);
        }
    }
    {
        const Tools outline(dc, silk, 3, false);
        Rectangle(dc, 180, 190, 620, 310);
        Ellipse(dc, 200, 270, 224, 294);
        line(dc, {{390, 250}, {410, 250}});
        line(dc, {{400, 240}, {400, 260}});
    }
    label(dc, 300, 220, silk, L">NAME");
    label(dc, 300, 270, silk, L">VALUE");
}

void paint(HDC dc, const RECT& area, Kind kind) {
    const bool paper = kind == Kind::schematic;
    FillRect(dc, &area, static_cast<HBRUSH>(GetStockObject(paper ? WHITE_BRUSH : BLACK_BRUSH)));
    grid(dc, area, paper ? RGB(200, 200, 200) : RGB(70, 70, 70));

    const int saved = SaveDC(dc);
    SetMapMode(dc, MM_ISOTROPIC);
    SetWindowExtEx(dc, sheetWidth, sheetHeight, nullptr);
    SetViewportExtEx(dc, area.right - area.left, area.bottom - area.top, nullptr);
    const HFONT font =
        CreateFontW(-18, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_TT_ONLY_PRECIS,
                    CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, L"Arial");
    SelectObject(dc, font);
    static constexpr std::array painters = {board, schematic, library};
    painters[static_cast<size_t>(kind)](dc);
    RestoreDC(dc, saved);
    DeleteObject(font);
}

} // namespace drawing
