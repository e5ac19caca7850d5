// A grid of icons, one of them selected or none, with their numbers below them.
#pragma once

#include "forms/control.h"

namespace forms {

class IconGrid : public Control {
  public:
    /// Gives the picture of the icon with this number, if it can with edges of so many pixels; the empty
    /// picture if there is none.
    using Source = std::function<Picture(int index, int side)>;

    IconGrid() : Control(ControlKind::iconGrid) {}

    /// Edge of an icon in pixels of the design; a picture of another size is fitted.
    static constexpr int iconSize = 32;
    /// The same in those of the grid's form.
    int iconSide() const { return resolution().scaled(iconSize); }

    /// Shows so many icons instead of those that were there, none of them selected, without an event. The
    /// source is asked for a picture when that is about to be seen, so that a large grid is there at once.
    void show(int count, Source source);
    /// Shows no icons.
    void clear() { show(0, {}); }

    int count() const { return count_; }
    /// Asks the source; as large as the grid shows it. Error 5 for an index out of range.
    Picture picture(int index) const;

    /// The selected icon, -1 none.
    int selectedIndex() const { return selectedIndex_; }
    /// Raises onClick inside the assignment if the index really changes to an icon. Error 5 for an index out
    /// of range.
    void setSelectedIndex(int index);

    std::function<void()> onClick;
    std::function<void()> onDblClick;

    // Called by the peer. An icon that is not there and a disabled grid raise nothing.
    /// The user has selected an icon. Raises onClick.
    void selected(int index);
    /// The user has clicked an icon twice. Selects it, as its first click does, and raises onDblClick.
    void doubleClicked(int index);

  private:
    bool has(int index) const { return index >= 0 && index < count_; }

    int count_ = 0;
    Source source_;
    int selectedIndex_ = -1;
};

} // namespace forms
