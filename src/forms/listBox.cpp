#include "forms/listBox.h"

#include "forms/event.h"
#include "runtime/runtimeError.h"

#include <algorithm>

namespace forms {

void ItemList::addItem(std::string_view text) {
    items_.emplace_back(text);
    tellPeer(Property::items);
}

void ItemList::clear() {
    items_.clear();
    listIndex_ = -1;
    tellPeer(Property::items);
}

const std::string& ItemList::list(int index) const {
    if (index < 0 || index >= listCount())
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    return items_[static_cast<std::size_t>(index)];
}

void ItemList::setListIndex(int index) {
    if (index < -1 || index >= listCount())
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    if (index == listIndex_)
        return;
    listIndex_ = index;
    tellPeer(Property::selection);
    if (index >= 0)
        raise(onClick);
}

void ItemList::selected(int index) {
    if (!acceptsInput() || index < 0 || index >= listCount())
        return;
    listIndex_ = index;
    raise(onClick);
}

bool ListBox::keyPressed(const platform::KeyStroke& stroke) {
    if (!acceptsInput() || !onKey)
        return false;
    // A copy: the event may unload the form.
    const auto running = onKey;
    return running(stroke);
}

void ListBox::filesDropped(const std::vector<std::string>& files) {
    if (acceptsInput())
        raise(onFiles, files);
}

std::string ComboBox::text() const {
    return listIndex() < 0 ? std::string() : list(listIndex());
}

void ComboBox::setText(std::string_view text) {
    const auto row = std::find(items().begin(), items().end(), text);
    if (row != items().end())
        setListIndex(static_cast<int>(row - items().begin()));
}

} // namespace forms
