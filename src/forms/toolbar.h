// A toolbar: flat buttons with pictures, laid out from left to right and wrapped into as many rows as the
// width demands. Its height is always that of its rows.
//
// Where a window shows it, the system's control wraps the buttons and reports the height; everywhere else
// they are laid out as that control would (toolbarLayout.h).
#pragma once

#include "forms/control.h"
#include "forms/imageList.h"

#include <deque>
#include <map>
#include <memory>
#include <optional>

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

class Toolbar : public Control {
  public:
    Toolbar() : Control(ControlKind::toolbar) { tabStop = false; }

    /// The toolbar stands at the top of its form and spans the client width.
    bool alignTop = true;

    /// Null for none. The list must outlive the toolbar or be taken away; a change of its pictures shows with
    /// the next assignment.
    /// With the window of the toolbar the list loses its pictures.
    void setImageList(ImageList* list);
    const ImageList* imageList() const { return imageList_; }

    void clearButtons();
    /// Appends a button. A key that is there already gives error 35602, an image number that the list does
    /// not have error 9; the toolbar is unchanged then. The reference holds until clearButtons.
    ToolbarButton& addButton(std::string_view key, std::string_view caption, ButtonStyle style, int image);
    /// The same with the key of an image, which is looked up in the toolbar's list.
    ToolbarButton& addButton(std::string_view key, std::string_view caption, ButtonStyle style,
                             std::string_view imageKey);
    const std::deque<ToolbarButton>& buttons() const;
    /// Null if there is no button with this key.
    ToolbarButton* findButton(std::string_view key);

    /// The rows of the present buttons at the present width, whatever is assigned.
    float height() const override;
    void setPosition(const Position& position) override;
    void containerResized(float clientWidth) override;
    /// Buttons go, and the list's pictures. What is added later is kept and answered for as ever, keys and
    /// errors too: who fills a toolbar that is lost calls this when it has been filled.
    void windowLost() override;
    void resolutionChanged() override;
    /// Called by the peer: the control has laid out its buttons, and its rows are that many pixels high.
    void rowsLaidOut(int height) { rowsHeight_ = height; }

    /// The handler is given a copy of the button, so that it may rebuild the toolbar.
    std::function<void(ToolbarButton& button)> onButtonClick;
    /// Called by the peer: the user has clicked the button with this index (from 0). A separator, a button
    /// that is not there and a disabled toolbar raise nothing.
    void clickButton(std::size_t index);

  private:
    bool hasKey(std::string_view key) const;

    struct Content {
        std::deque<ToolbarButton> buttons;
        std::map<std::string, ToolbarButton*, std::less<>> keys;
    };

    ImageList* imageList_ = nullptr;
    std::unique_ptr<Content> content_;      ///< none without buttons: even an empty one takes its room
    mutable std::optional<int> rowsHeight_; ///< pixels; none when buttons or width have changed since
};

} // namespace forms
