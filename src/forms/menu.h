// A pop-up menu: entries and separators.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace forms {

struct MenuItem {
    int index = 0;       ///< what the click event is given
    std::string caption; ///< with its mnemonic marker; "-" is a separator
    bool enabled = true;
    bool visible = true;
};

class Menu {
  public:
    std::vector<MenuItem> items;
    std::function<void(int index)> onClick;

    /// Called by the peer: the entry with this index was chosen. Separators, disabled and hidden entries
    /// raise nothing.
    void choose(int index) const;
};

} // namespace forms
