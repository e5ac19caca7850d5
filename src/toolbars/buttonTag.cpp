#include "toolbars/buttonTag.h"

#include "platform/codePage.h"
#include "runtime/text.h"
#include "runtime/western.h"
#include "store/mends.h"

#include <string_view>

namespace toolbars {

namespace {

// What stands for the mark, and for the sign itself, in a field whose marks are escaped.
constexpr std::string_view escapeSign = "\x1E";
constexpr std::string_view escapedMark = "\x1E"
                                         "0";
constexpr std::string_view escapedSign = "\x1E"
                                         "1";

/// Kept: nothing escapes a mark in a path or prompt, so that the fields behind it are others, most often
/// none that can be read.
std::string escaped(const std::string& field) {
    if (!store::mended(store::Mend::noEnd))
        return field;
    return runtime::replaceAll(runtime::replaceAll(field, escapeSign, escapedSign), tagMark(), escapedMark);
}

} // namespace

const std::string& tagMark() {
    static const std::string mark = [] {
        std::string sign = runtime::western("\xA7");
        // The Thai code page has none: a character that nobody writes does the same.
        return platform::toUtf16(sign) == u"\u00A7" ? sign : std::string("\x1F");
    }();
    return mark;
}

std::string buttonTag(const store::ToolButton& button) {
    std::string tag = escaped(button.path);
    tag += tagMark();
    tag += std::to_string(button.dialog);
    tag += tagMark();
    tag += escaped(button.param);
    tag += tagMark();
    tag += std::to_string(button.type);
    return tag;
}

std::vector<std::string> tagFields(const std::string& tag) {
    std::vector<std::string> fields = runtime::split(tag, tagMark());
    // Kept: as above, each mark ends a field.
    if (store::mended(store::Mend::noEnd))
        for (std::string& field : fields)
            field = runtime::replaceAll(runtime::replaceAll(field, escapedMark, tagMark()), escapedSign,
                                        escapeSign);
    return fields;
}

} // namespace toolbars
