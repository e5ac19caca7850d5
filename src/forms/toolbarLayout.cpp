#include "forms/toolbarLayout.h"

#include "forms/toolbar.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace forms {

namespace {

/// A row's last button need not fit: the control is content when its picture does.
int overhang(const ToolbarMetrics& sizes) {
    return (sizes.buttonWidth - sizes.picture) / 2;
}

/// What a separator adds to the distance of two rows when it ends the upper one. The control goes by a width
/// of its own, whatever the separator's is.
constexpr int rowGap = 8 * 2 / 3;

/// Finds the ends of the rows, one after the other.
///
/// That a row ends at its rightmost separator, and on a button only where it has none, is what Windows
/// documents of a toolbar that wraps. The rest is what the control does under Wine, which was modelled on
/// Windows' own and is assumed to do the same: the overhang, the gap, a separator beyond the edge that takes
/// its neighbours with it, and the groups of separators that are torn.
class RowEnds {
  public:
    RowEnds(const std::deque<ToolbarButton>& buttons, int width, const ToolbarMetrics& sizes)
        : buttons_(buttons), width_(width), sizes_(sizes) {}

    /// Index of the last button of the row that begins with the button `first`. Rows are asked for in order.
    std::size_t after(std::size_t first) {
        const bool tearsGroups = std::exchange(endedOnButton_, false);
        const bool firstCounts = !std::exchange(tornGroup_, false);
        std::optional<std::size_t> separator;
        int x = 0;
        for (std::size_t index = first; index < buttons_.size(); ++index) {
            if (!isSeparator(index)) {
                if (!fits(x, sizes_.buttonWidth)) {
                    if (separator)
                        return *separator;
                    endedOnButton_ = true;
                    return std::max(first + 1, index) - 1;
                }
                x += sizes_.buttonWidth;
                continue;
            }
            if (index > first || firstCounts) {
                if (tearsGroups && isSeparator(index + 1)) {
                    tornGroup_ = true;
                    return index;
                }
                if (!fits(x, sizes_.separatorWidth))
                    return lastOfGroup(index);
                x += sizes_.separatorWidth;
            }
            separator = index;
        }
        return buttons_.size() - 1;
    }

  private:
    bool isSeparator(std::size_t index) const {
        return index < buttons_.size() && buttons_[index].style == ButtonStyle::separator;
    }

    bool fits(int x, int buttonWidth) const {
        return x + buttonWidth - overhang(sizes_) <= width_ && (x > 0 || buttonWidth <= width_);
    }

    std::size_t lastOfGroup(std::size_t index) const {
        while (isSeparator(index + 1))
            ++index;
        return index;
    }

    const std::deque<ToolbarButton>& buttons_;
    int width_;
    ToolbarMetrics sizes_;
    /// The row before has ended on a button. Then the first of the adjacent separators that come next ends
    /// its row, whatever room is left ...
    bool endedOnButton_ = false;
    /// ... and the second, which begins the next row, takes room that the control does not count.
    bool tornGroup_ = false;
};

} // namespace

ToolbarLayout layoutToolbar(const std::deque<ToolbarButton>& buttons, int width, Resolution resolution) {
    const ToolbarMetrics sizes(resolution);
    ToolbarLayout layout;
    layout.height = sizes.buttonHeight;
    layout.places.reserve(buttons.size());
    RowEnds ends(buttons, width, sizes);
    int top = 0;
    for (std::size_t first = 0; first < buttons.size(); first = layout.places.size()) {
        const std::size_t last = ends.after(first);
        layout.height = top + sizes.buttonHeight;
        bool gap = false;
        for (int left = 0; layout.places.size() <= last;) {
            gap = buttons[layout.places.size()].style == ButtonStyle::separator;
            layout.places.push_back({left, top});
            left += gap ? sizes.separatorWidth : sizes.buttonWidth;
        }
        top += sizes.buttonHeight + (gap ? rowGap : 0);
    }
    return layout;
}

} // namespace forms
