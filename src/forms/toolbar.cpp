#include "forms/toolbar.h"

#include "forms/event.h"
#include "forms/toolbarLayout.h"
#include "runtime/runtimeError.h"

namespace forms {

void Toolbar::setImageList(ImageList* list) {
    imageList_ = list;
    rowsHeight_.reset();
    tellPeer(Property::imageList);
}

void Toolbar::clearButtons() {
    content_.reset();
    rowsHeight_.reset();
    tellPeer(Property::buttons);
}

ToolbarButton& Toolbar::addButton(std::string_view key, std::string_view caption, ButtonStyle style,
                                  int image) {
    if (image < 0 || image > (imageList_ != nullptr ? imageList_->count() : 0))
        throw runtime::RuntimeError(runtime::ErrorNumber::subscriptOutOfRange);
    if (hasKey(key))
        throw runtime::RuntimeError(runtime::ErrorNumber::keyNotUnique);
    if (!content_)
        content_ = std::make_unique<Content>();
    ToolbarButton& button = content_->buttons.emplace_back();
    button.key = std::string(key);
    button.caption = std::string(caption);
    button.style = style;
    button.image = image;
    if (!key.empty())
        content_->keys.emplace(button.key, &button);
    rowsHeight_.reset();
    tellPeer(Property::buttons);
    return button;
}

ToolbarButton& Toolbar::addButton(std::string_view key, std::string_view caption, ButtonStyle style,
                                  std::string_view imageKey) {
    if (imageList_ == nullptr)
        throw runtime::RuntimeError(runtime::ErrorNumber::subscriptOutOfRange);
    return addButton(key, caption, style, imageList_->indexOf(imageKey));
}

const std::deque<ToolbarButton>& Toolbar::buttons() const {
    static const std::deque<ToolbarButton> none;
    return content_ ? content_->buttons : none;
}

bool Toolbar::hasKey(std::string_view key) const {
    return content_ && content_->keys.contains(key);
}

ToolbarButton* Toolbar::findButton(std::string_view key) {
    return hasKey(key) ? content_->keys.find(key)->second : nullptr;
}

float Toolbar::height() const {
    if (!rowsHeight_)
        catchUpPeer();
    if (!rowsHeight_)
        rowsHeight_ = layoutToolbar(buttons(), resolution().toPixels(width()), resolution()).height;
    return resolution().toTwips(*rowsHeight_);
}

void Toolbar::containerResized(float clientWidth) {
    if (alignTop)
        setPosition({0, 0, clientWidth, 0});
}

void Toolbar::windowLost() {
    Control::windowLost();
    content_.reset();
    if (imageList_ != nullptr)
        imageList_->clear();
}

void Toolbar::resolutionChanged() {
    rowsHeight_.reset();
    Control::resolutionChanged();
}

void Toolbar::setPosition(const Position& position) {
    if (resolution().toPixels(position.width) != resolution().toPixels(width()))
        rowsHeight_.reset();
    Position heightless = position;
    heightless.height = 0;
    Control::setPosition(heightless);
}

void Toolbar::clickButton(std::size_t index) {
    if (!acceptsInput() || index >= buttons().size() || buttons()[index].style == ButtonStyle::separator)
        return;
    ToolbarButton clicked = buttons()[index];
    raise(onButtonClick, clicked);
}

} // namespace forms
