#include "eagle/chrome.h"

#include <algorithm>

namespace chrome {

static constexpr int toolRow = 22;
static constexpr int parameterRow = toolRow + 26;
static constexpr int commandRow = parameterRow + 26;
static constexpr int paletteWidth = 48;
static constexpr int statusHeight = 20;
static constexpr int freeAtRight = 240;

Layout layout(int width, int height) {
    const int bottom = std::max(height - statusHeight, commandRow + 2);
    const int right = std::max(width - freeAtRight, paletteWidth + 260);
    return {
        .layer = {60, toolRow + 1, 210, toolRow + 160}, // a combo box's height includes its list
        .coordinates = {2, parameterRow + 2, 168, commandRow - 2},
        .command = {172, parameterRow + 2, right, commandRow - 2},
        .canvas = {paletteWidth, commandRow + 2, std::max(width, paletteWidth + 1), bottom},
        .status = {0, bottom, width, bottom + statusHeight},
    };
}

HMENU makeMenu(bool german) {
    static constexpr const wchar_t* words[][2] = {
        {L"&File", L"&Datei"},       {L"&Edit", L"&Bearbeiten"}, {L"&Draw", L"&Zeichnen"},
        {L"&View", L"&Ansicht"},     {L"&Tools", L"&Werkzeuge"}, {L"&Library", L"B&ibliothek"},
        {L"&Options", L"&Optionen"}, {L"&Window", L"Fen&ster"},  {L"&Help", L"&Hilfe"},
    };
    const HMENU bar = CreateMenu(); // goes with its window
    for (const auto& word : words) {
        const HMENU menu = CreatePopupMenu();
        AppendMenuW(menu, MF_STRING, closeCommand, german ? L"S&chlie\u00DFen" : L"&Close");
        AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), word[german]);
    }
    return bar;
}

// A tool's picture: a few strokes in a colour, different by number.
static void tool(HDC dc, int x, int y, int number) {
    static constexpr COLORREF colors[] = {RGB(180, 30, 30), RGB(30, 90, 180), RGB(30, 130, 60),
                                          RGB(150, 110, 20)};
    const HPEN pen = CreatePen(PS_SOLID, 2, colors[number % 4]);
    const HGDIOBJ oldPen = SelectObject(dc, pen);
    const HGDIOBJ oldBrush = SelectObject(dc, GetStockObject(number % 3 == 0 ? WHITE_BRUSH : NULL_BRUSH));
    switch (number % 5) {
    case 0:
        Rectangle(dc, x + 3, y + 3, x + 14, y + 14);
        break;
    case 1:
        Ellipse(dc, x + 3, y + 3, x + 14, y + 14);
        break;
    case 2:
        MoveToEx(dc, x + 3, y + 13, nullptr);
        LineTo(dc, x + 8, y + 4);
        LineTo(dc, x + 14, y + 13);
        break;
    case 3:
        MoveToEx(dc, x + 3, y + 8, nullptr);
        LineTo(dc, x + 14, y + 8);
        MoveToEx(dc, x + 8, y + 3, nullptr);
        LineTo(dc, x + 8, y + 14);
        break;
    default:
        RoundRect(dc, x + 3, y + 5, x + 14, y + 12, 5, 5);
    }
    SelectObject(dc, oldPen);
    SelectObject(dc, oldBrush);
    DeleteObject(pen);
}

void paint(HDC dc, int height) {
    for (int i = 0; i < 15; ++i)
        tool(dc, 4 + i * 22 + i / 4 * 8, 2, i);
    for (int i = 0; commandRow + 6 + i / 2 * 22 < height - statusHeight - 20 && i < 36; ++i)
        tool(dc, 3 + i % 2 * 22, commandRow + 6 + i / 2 * 22, i * 7 + 3);
    SetBkMode(dc, TRANSPARENT);
    const HGDIOBJ oldFont = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    TextOutW(dc, 8, toolRow + 6, L"Layer:", 6);
    SelectObject(dc, oldFont);
}

} // namespace chrome
