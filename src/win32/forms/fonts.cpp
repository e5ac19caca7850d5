#include "win32/forms/fonts.h"

#include "win32/common/resolution.h"

#include <vector>

namespace win32 {

namespace {

struct Known {
    forms::Font font;
    int dots;
    std::weak_ptr<const OwnedFont> made;
};

HFONT make(const forms::Font& font, int dots) {
    LOGFONTA description{};
    description.lfHeight = fontHeight(font.points, dots);
    description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    description.lfItalic = font.italic ? TRUE : FALSE;
    description.lfCharSet = DEFAULT_CHARSET;
    font.name.copy(description.lfFaceName, LF_FACESIZE - 1);
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
