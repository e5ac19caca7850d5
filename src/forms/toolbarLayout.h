// Where the buttons of a toolbar stand: the wrapping of the system's own control, for where there is none.
#pragma once

#include <deque>
#include <vector>

namespace forms {

struct ToolbarButton;

/// Sizes in pixels.
inline constexpr int toolbarButtonWidth = 23;
inline constexpr int toolbarButtonHeight = 22;
inline constexpr int toolbarSeparatorWidth = 8;

/// Upper left corner of a button or separator, in pixels from the toolbar's.
struct ButtonPlace {
    int left = 0;
    int top = 0;
};

struct ToolbarLayout {
    std::vector<ButtonPlace> places;  ///< one for each button
    int height = toolbarButtonHeight; ///< in pixels, down to the lowest edge; one row at least
};

/// Rows that a toolbar of `width` pixels has. Each holds at least one button, however narrow the toolbar is.
ToolbarLayout layoutToolbar(const std::deque<ToolbarButton>& buttons, int width);

} // namespace forms
