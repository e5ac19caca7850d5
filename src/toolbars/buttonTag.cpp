#include "toolbars/buttonTag.h"

namespace toolbars {

std::string buttonTag(const store::ToolButton& button) {
    std::string tag = button.path;
    tag += tagMark;
    tag += std::to_string(button.dialog);
    tag += tagMark;
    tag += button.param;
    tag += tagMark;
    tag += std::to_string(button.type);
    return tag;
}

} // namespace toolbars
