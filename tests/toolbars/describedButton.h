// A button as the tests of clicks describe it, by what a click looks at.
#pragma once

#include "store/buttonLists.h"

#include <cstdint>
#include <string>

namespace toolbars {

inline store::ToolButton describedButton(const std::string& path, int dialog, const std::string& param,
                                         int type) {
    store::ToolButton button;
    button.path = path;
    button.dialog = static_cast<std::int16_t>(dialog);
    button.param = param;
    button.type = static_cast<std::int16_t>(type);
    return button;
}

} // namespace toolbars
