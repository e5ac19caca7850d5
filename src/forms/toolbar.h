// A toolbar: flat buttons with pictures, laid out from left to right and wrapped into as many rows as the
// width demands. Its height is always that of its rows.
#pragma once

#include "forms/control.h"
#include "forms/imageList.h"

#include <deque>
#include <map>

namespace forms {

enum class ButtonStyle { standard = 0, separator = 3 };

struct ToolbarButton {
    std::string key;
    std::string caption;
    ButtonStyle style = ButtonStyle::standard;
    int image = 0; ///< number in the toolbar's image list, 0 for none
    std::string toolTipText;
    std::string description;
    std::string tag;
};

/// Sizes in pixels.
inline constexpr int toolbarButtonWidth = 23;
inline constexpr int toolbarButtonHeight = 22;
inline constexpr int toolbarSeparatorWidth = 8;

/// Place of one button, in pixels from the toolbar's corner.
struct ButtonCell {
    int x = 0;
    int row = 0;
    bool hidden = false; ///< a separator that falls on the end of a row is not shown and takes no room
    bool separator = false;
};

struct ToolbarLayout {
    std::vector<ButtonCell> cells; ///< one for each button
    int rows = 1;                  ///< at least one
    int used = 0;                  ///< pixels of the last row that are taken

    /// Finds the place of a further button on a toolbar of this width in pixels.
    void append(ButtonStyle style, int width);
};

/// Rows of buttons that `width` pixels demand. Each holds at least one button, however narrow the toolbar is.
ToolbarLayout layoutToolbar(const std::deque<ToolbarButton>& buttons, int width);

class Toolbar : public Control {
  public:
    Toolbar() : Control(ControlKind::toolbar) {
        tabStop = false;
        followRows();
    }

    /// The toolbar stands at the top of its form and spans the client width.
    bool alignTop = true;

    /// Null for none. The list must outlive the toolbar or be taken away; a change of its pictures shows with
    /// the next assignment.
    void setImageList(const ImageList* list);
    const ImageList* imageList() const { return imageList_; }

    void clearButtons();
    /// Appends a button. A key that is there already gives error 35602, an image number that the list does
    /// not have error 9; the toolbar is unchanged then. The reference holds until clearButtons.
    ToolbarButton& addButton(std::string_view key, std::string_view caption, ButtonStyle style, int image);
    /// The same with the key of an image, which is looked up in the toolbar's list.
    ToolbarButton& addButton(std::string_view key, std::string_view caption, ButtonStyle style,
                             std::string_view imageKey);
    const std::deque<ToolbarButton>& buttons() const { return buttons_; }
    /// Null if there is no button with this key.
    ToolbarButton* findButton(std::string_view key);

    const ToolbarLayout& layout() const { return layout_; }
    /// The height is that of the rows of buttons, whatever is assigned.
    void setPosition(const Position& position) override;

    /// The handler is given a copy of the button, so that it may rebuild the toolbar.
    std::function<void(ToolbarButton& button)> onButtonClick;
    /// Called by the peer: the user has clicked the button with this index (from 0). A separator, a button
    /// that is not there and a disabled toolbar raise nothing.
    void clickButton(std::size_t index);

  private:
    void followRows();

    const ImageList* imageList_ = nullptr;
    std::deque<ToolbarButton> buttons_;
    std::map<std::string, ToolbarButton*, std::less<>> keys_;
    ToolbarLayout layout_;
};

} // namespace forms
