#include "forms/control.h"

#include "forms/form.h"
#include "forms/shared.h"

#include <algorithm>

namespace forms {

Control::~Control() {
    if (container_ != nullptr)
        container_->remove(*this);
}

void Control::place(Container& container, const Position& position) {
    if (container_ != nullptr) {
        dropPeers();
        container_->remove(*this);
        container_ = nullptr;
    }
    container.controls_.push_back(this);
    container_ = &container;
    setPosition(position);
    container.childPlaced(*this);
    if (const Form* on = form(); on != nullptr && on->loaded())
        makePeers();
}

Form* Control::form() {
    Control* outermost = this;
    while (outermost->container_ != nullptr)
        outermost = outermost->container_;
    return outermost->kind_ == ControlKind::form ? static_cast<Form*>(outermost) : nullptr;
}

Resolution Control::resolution() const {
    return container_ == nullptr ? Resolution() : container_->resolution();
}

void Control::setLeft(float twips) {
    Position moved = position_;
    moved.left = twips;
    setPosition(moved);
}

void Control::setTop(float twips) {
    Position moved = position_;
    moved.top = twips;
    setPosition(moved);
}

void Control::setWidth(float twips) {
    Position sized = position_;
    sized.width = twips;
    setPosition(sized);
}

void Control::setHeight(float twips) {
    Position sized = position_;
    sized.height = twips;
    setPosition(sized);
}

void Control::setPosition(const Position& position) {
    if (position == position_)
        return;
    position_ = position;
    tellPeer(Property::position);
}

void Control::setEnabled(bool enabled) {
    if (enabled == enabled_)
        return;
    enabled_ = enabled;
    tellPeer(Property::enabled);
}

bool Control::acceptsInput() const {
    for (const Control* control = this; control != nullptr; control = control->container_)
        if (!control->enabled_)
            return false;
    return true;
}

void Control::setVisible(bool visible) {
    if (visible == visible_)
        return;
    visible_ = visible;
    tellPeer(Property::visible);
}

const std::string& Control::toolTipText() const {
    static const std::string none;
    return toolTipText_ == nullptr ? none : *toolTipText_;
}

void Control::setToolTipText(std::string_view text) {
    toolTipText_ = text.empty() ? nullptr : shared(std::string(text));
    tellPeer(Property::toolTip);
}

const Font& Control::font() const {
    static const Font usual;
    return font_ == nullptr ? usual : *font_;
}

void Control::setFont(const Font& font) {
    font_ = shared(font);
    tellPeer(Property::colours);
}

void Control::setForeColour(std::optional<Colour> colour) {
    foreColour_ = colour;
    tellPeer(Property::colours);
}

void Control::setBackColour(std::optional<Colour> colour) {
    backColour_ = colour;
    tellPeer(Property::colours);
}

platform::HWND Control::hWnd() {
    return peer_ ? peer_->window() : platform::HWND::none;
}

void Control::setFocus() {
    if (const std::shared_ptr<Peer> peer = peer_)
        peer->setFocus();
}

void Control::makePeers() {
    if (!peer_ && !lost_)
        peer_ = makePeer(*this);
}

void Control::dropPeers() {
    peer_.reset();
    lost_ = false;
}

void Control::windowLost() {
    lost_ = true;
    peer_.reset();
}

bool Control::windowsMade() const {
    return peer_ == nullptr || peer_->window() != platform::HWND::none;
}

void Control::tellPeer(Property property) {
    if (const std::shared_ptr<Peer> peer = peer_)
        peer->changed(property);
}

void Control::catchUpPeer() const {
    if (const std::shared_ptr<Peer> peer = peer_)
        peer->catchUp();
}

Container::~Container() {
    for (Control* child : controls_)
        child->container_ = nullptr;
}

void Container::resolutionChanged() {
    Control::resolutionChanged();
    for (Control* child : std::vector<Control*>(controls_))
        child->resolutionChanged();
}

void Container::makePeers() {
    Control::makePeers();
    for (Control* child : std::vector<Control*>(controls_))
        child->makePeers();
}

// Both need no memory, where none is left the windows go all the same, and a control may go meanwhile.
void Container::dropPeers() {
    for (std::size_t next = 0; next < controls_.size();)
        controls_[next++]->dropPeers();
    Control::dropPeers();
}

void Container::windowLost() {
    for (std::size_t next = 0; next < controls_.size();)
        controls_[next++]->windowLost();
    Control::windowLost();
}

bool Container::windowsMade() const {
    return Control::windowsMade() &&
           std::ranges::all_of(controls_, [](const Control* child) { return child->windowsMade(); });
}

void Container::remove(Control& child) {
    // From the back: members go in the reverse of the order in which they were placed.
    const auto found = std::find(controls_.rbegin(), controls_.rend(), &child);
    controls_.erase(std::next(found).base());
    childRemoved(child);
}

} // namespace forms
