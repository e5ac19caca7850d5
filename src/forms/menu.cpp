#include "forms/menu.h"

#include "forms/event.h"

#include <algorithm>

namespace forms {

void Menu::choose(int index) const {
    const auto chosen = std::find_if(items.begin(), items.end(),
                                     [index](const MenuItem& item) { return item.index == index; });
    if (chosen != items.end() && chosen->enabled && chosen->visible && chosen->caption != "-")
        raise(onClick, index);
}

} // namespace forms
