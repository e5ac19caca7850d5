// List box and drop-down list.
#pragma once

#include "forms/control.h"
#include "platform/keyStroke.h"

namespace forms {

/// What both kinds of list have in common: rows of text, one of them selected or none (-1).
class ItemList : public Control {
  public:
    using Control::Control;

    /// Appends a row; the selection stays.
    void addItem(std::string_view text);
    /// Removes all rows and the selection, without an event.
    void clear();

    int listCount() const { return static_cast<int>(items_.size()); }
    /// Error 5 for an index out of range.
    const std::string& list(int index) const;
    const std::vector<std::string>& items() const { return items_; }

    int listIndex() const { return listIndex_; }
    /// Selects a row, -1 none; raises onClick inside the assignment if the index really changes to a row.
    /// Error 5 for an index out of range.
    void setListIndex(int index);

    std::function<void()> onClick;
    /// Called by the peer: the user has selected a row. Raises onClick, also on the row that is selected
    /// already. A row that is not there and a disabled list raise nothing.
    void selected(int index);

  private:
    std::vector<std::string> items_;
    int listIndex_ = -1;
};

class ListBox : public ItemList {
  public:
    ListBox() : ItemList(ControlKind::listBox) {}

    /// A key that is pressed while the list has the keyboard; what it takes, with true, does nothing else.
    std::function<bool(const platform::KeyStroke&)> onKey;
    /// Files that the user has dropped on the list, by their full paths. Without it the list takes none.
    std::function<void(const std::vector<std::string>&)> onFiles;
    // Called by the peer. A disabled list raises nothing.
    bool keyPressed(const platform::KeyStroke& stroke);
    void filesDropped(const std::vector<std::string>& files);
};

/// A drop-down list: it takes no text but that of its rows.
class ComboBox : public ItemList {
  public:
    ComboBox() : ItemList(ControlKind::comboBox) {}

    /// The selected row's text, empty without a selection.
    std::string text() const;
    /// Selects the first row with exactly this text; a text that no row has changes nothing.
    void setText(std::string_view text);
};

} // namespace forms
