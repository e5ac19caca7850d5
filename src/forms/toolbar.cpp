#include "forms/toolbar.h"

#include "forms/event.h"
#include "forms/toolbarLayout.h"
#include "runtime/runtimeError.h"

namespace forms {

void Toolbar::setImageList(const ImageList* list) {
    imageList_ = list;
    rowsHeight_.reset();
    tellPeer(Property::imageList);
}

void Toolbar::clearButtons() {
    buttons_.clear();
    keys_.clear();
    rowsHeight_.reset();
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

ToolbarButton* Toolbar::findButton(std::string_view key) {
    const auto found = keys_.find(key);
    return found == keys_.end() ? nullptr : found->second;
}

float Toolbar::height() const {
    if (!rowsHeight_ && peer() != nullptr)
        peer()->catchUp();
    if (!rowsHeight_)
        rowsHeight_ = layoutToolbar(buttons_, resolution().toPixels(width())).height;
    return resolution().toTwips(*rowsHeight_);
}

void Toolbar::containerResized(float clientWidth) {
    if (alignTop)
        setPosition({0, 0, clientWidth, 0});
}

void Toolbar::setPosition(const Position& position) {
    if (resolution().toPixels(position.width) != resolution().toPixels(width()))
        rowsHeight_.reset();
    Position heightless = position;
    heightless.height = 0;
    Control::setPosition(heightless);
}

void Toolbar::clickButton(std::size_t index) {
    if (!acceptsInput() || index >= buttons_.size() || buttons_[index].style == ButtonStyle::separator)
        return;
    ToolbarButton clicked = buttons_[index];
    raise(onButtonClick, clicked);
}

} // namespace forms
