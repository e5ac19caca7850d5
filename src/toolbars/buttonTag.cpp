#include "toolbars/buttonTag.h"

#include "platform/codePage.h"
#include "runtime/western.h"

namespace toolbars {

const std::string& tagMark() {
    static const std::string mark = [] {
        std::string sign = runtime::western("\xA7");
        // The Thai code page has none: a character that nobody writes does the same.
        return platform::toUtf16(sign) == u"\u00A7" ? sign : std::string("\x1F");
    }();
    return mark;
}

std::string buttonTag(const store::ToolButton& button) {
    std::string tag = button.path;
    tag += tagMark();
    tag += std::to_string(button.dialog);
    tag += tagMark();
    tag += button.param;
    tag += tagMark();
    tag += std::to_string(button.type);
    return tag;
}

} // namespace toolbars
