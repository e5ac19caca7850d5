// Where the buttons of a toolbar stand: the wrapping of the system's own control, for where there is none.
#pragma once

#include "forms/units.h"

#include <deque>
#include <vector>

namespace forms {

struct ToolbarButton;

/// Sizes in pixels: at 96 dpi a button of 23 by 22 with a picture of 16, and a separator of 8.
///
/// At other resolutions a button is a fraction of a pixel wider or narrower than these would be, and on a
/// long row the fractions add up. So a separator makes good what three buttons have lost or won. A toolbar of
/// the design's width, five buttons wide, has the rows that it has at 96 dpi then, but for some of many
/// separators: nearly all of them at 120 dpi, where a button is a quarter of a pixel too wide. One that the
/// user has made wider can have others.
struct ToolbarMetrics {
    explicit constexpr ToolbarMetrics(Resolution resolution)
        : picture(resolution.scaled(16)), buttonWidth(resolution.scaledDown(23)),
          buttonHeight(resolution.scaled(22)),
          separatorWidth(resolution.scaledDown(3 * 23 + 8) - 3 * buttonWidth) {}

    int picture; ///< width and height
    int buttonWidth;
    int buttonHeight;
    int separatorWidth;
};

/// Upper left corner of a button or separator, in pixels from the toolbar's.
struct ButtonPlace {
    int left = 0;
    int top = 0;
};

struct ToolbarLayout {
    std::vector<ButtonPlace> places; ///< one for each button
    int height = 0;                  ///< in pixels, down to the lowest edge; one row at least
};

/// Rows that a toolbar of `width` pixels has. Each holds at least one button, however narrow the toolbar is.
ToolbarLayout layoutToolbar(const std::deque<ToolbarButton>& buttons, int width, Resolution resolution = {});

} // namespace forms
