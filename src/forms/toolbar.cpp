#include "forms/toolbar.h"

#include "forms/event.h"
#include "forms/units.h"
#include "runtime/runtimeError.h"

namespace forms {

void ToolbarLayout::append(ButtonStyle style, int width) {
    if (style == ButtonStyle::separator) {
        const bool hidden = used + toolbarSeparatorWidth > width;
        cells.push_back({used, rows - 1, hidden, true});
        if (!hidden)
            used += toolbarSeparatorWidth;
        return;
    }
    if (used + toolbarButtonWidth > width) {
        for (auto cell = cells.rbegin(); cell != cells.rend() && cell->separator; ++cell) {
            if (!cell->hidden)
                used -= toolbarSeparatorWidth;
            cell->hidden = true;
        }
        // A row of nothing but hidden separators goes on with the button, however narrow it is.
        if (used > 0) {
            ++rows;
            used = 0;
        }
    }
    cells.push_back({used, rows - 1, false, false});
    used += toolbarButtonWidth;
}

ToolbarLayout layoutToolbar(const std::deque<ToolbarButton>& buttons, int width) {
    ToolbarLayout layout;
    layout.cells.reserve(buttons.size());
    for (const ToolbarButton& button : buttons)
        layout.append(button.style, width);
    return layout;
}

void Toolbar::setImageList(const ImageList* list) {
    imageList_ = list;
    tellPeer(Property::imageList);
}

void Toolbar::clearButtons() {
    buttons_.clear();
    keys_.clear();
    layout_ = {};
    followRows();
    tellPeer(Property::buttons);
}

ToolbarButton& Toolbar::addButton(std::string_view key, std::string_view caption, ButtonStyle style,
                                  int image) {
    if (image < 0 || image > (imageList_ != nullptr ? imageList_->count() : 0))
        throw runtime::RuntimeError(runtime::ErrorNumber::subscriptOutOfRange);
    if (findButton(key) != nullptr)
        throw runtime::RuntimeError(runtime::ErrorNumber::keyNotUnique);
    ToolbarButton& button = buttons_.emplace_back();
    button.key = std::string(key);
    button.caption = std::string(caption);
    button.style = style;
    button.image = image;
    if (!key.empty())
        keys_.emplace(button.key, &button);
    layout_.append(style, toPixels(width()));
    followRows();
    tellPeer(Property::buttons);
    return button;
}

ToolbarButton& Toolbar::addButton(std::string_view key, std::string_view caption, ButtonStyle style,
                                  std::string_view imageKey) {
    if (imageList_ == nullptr)
        throw runtime::RuntimeError(runtime::ErrorNumber::subscriptOutOfRange);
    return addButton(key, caption, style, imageList_->indexOf(imageKey));
}

ToolbarButton* Toolbar::findButton(std::string_view key) {
    const auto found = keys_.find(key);
    return found == keys_.end() ? nullptr : found->second;
}

void Toolbar::setPosition(const Position& position) {
    Position kept = position;
    const bool otherWidth = toPixels(position.width) != toPixels(width());
    if (otherWidth)
        layout_ = layoutToolbar(buttons_, toPixels(position.width));
    kept.height = toTwips(layout_.rows * toolbarButtonHeight);
    Control::setPosition(kept);
    if (otherWidth)
        tellPeer(Property::buttons);
}

void Toolbar::followRows() {
    Position rows = position();
    rows.height = toTwips(layout_.rows * toolbarButtonHeight);
    Control::setPosition(rows);
}

void Toolbar::clickButton(std::size_t index) {
    if (!acceptsInput() || index >= buttons_.size() || buttons_[index].style == ButtonStyle::separator)
        return;
    ToolbarButton clicked = buttons_[index];
    raise(onButtonClick, clicked);
}

} // namespace forms
