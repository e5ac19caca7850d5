#include "forms/iconGrid.h"

#include "forms/event.h"
#include "runtime/runtimeError.h"

#include <algorithm>
#include <utility>

namespace forms {

void IconGrid::show(int count, Source source) {
    count_ = std::max(0, count);
    source_ = std::move(source);
    selectedIndex_ = -1;
    tellPeer(Property::items);
}

Picture IconGrid::picture(int index) const {
    if (!has(index))
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    const int side = iconSide();
    return (source_ ? source_(index, side) : Picture()).fitted(side, side);
}

void IconGrid::setSelectedIndex(int index) {
    if (index != -1 && !has(index))
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    if (index == selectedIndex_)
        return;
    selectedIndex_ = index;
    tellPeer(Property::selection);
    if (index >= 0)
        raise(onClick);
}

void IconGrid::selected(int index) {
    if (!acceptsInput() || !has(index))
        return;
    selectedIndex_ = index;
    raise(onClick);
}

void IconGrid::doubleClicked(int index) {
    if (!acceptsInput() || !has(index))
        return;
    if (selectedIndex_ != index)
        selected(index);
    // The first click's event may have shown other icons.
    if (selectedIndex_ == index)
        raise(onDblClick);
}

} // namespace forms
