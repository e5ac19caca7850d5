#include "win32/forms/fonts.h"

#include "win32/common/resolution.h"

#include <string>
#include <vector>

namespace win32 {

namespace {

struct Known {
    forms::Font font;
    int dots;
    std::weak_ptr<const OwnedFont> made;
};

/// The usual font is drawn dot by dot for 96 to the inch, and the system has no more than a few larger sizes
/// of it, which do not grow evenly. Its twin of outlines has the same letters and widths in every size.
std::string nameAt(const std::string& name, int dots) {
    return name == "MS Sans Serif" && dots != forms::Resolution::designDpi ? "Microsoft Sans Serif" : name;
}

HFONT make(const forms::Font& font, int dots) {
    LOGFONTA description{};
    description.lfHeight = fontHeight(font.points, dots);
    description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    description.lfItalic = font.italic ? TRUE : FALSE;
    description.lfCharSet = DEFAULT_CHARSET;
    nameAt(font.name, dots).copy(description.lfFaceName, LF_FACESIZE - 1);
    return CreateFontIndirectA(&description);
}

} // namespace

std::shared_ptr<const OwnedFont> fontOf(const forms::Font& font, int dots) {
    static std::vector<Known> all;
    std::erase_if(all, [](const Known& known) { return known.made.expired(); });
    for (const Known& known : all)
        if (known.dots == dots && known.font == font)
            return known.made.lock();
    auto made = std::make_shared<const OwnedFont>(make(font, dots));
    // One that could not be made is asked for again.
    if (made->handle != nullptr)
        all.push_back({font, dots, made});
    return made;
}

} // namespace win32
