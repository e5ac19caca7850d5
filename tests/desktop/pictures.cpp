// The pictures that the program carries, on the simulated desktop: plain areas of the right size.
#include "forms/picture.h"

#include "desktop/faults.h"

namespace forms {

Picture loadPicture(std::string_view name) {
    const desktop::Call call("loadPicture");
    if (call.fails())
        return {};
    const auto plain = [](int width, int height) {
        const auto pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
        return Picture(width, height, std::vector<std::uint32_t>(pixels, 0xFF336699U));
    };
    if (name == "splashSquare")
        return plain(93, 93);
    if (name == "splashWide")
        return plain(361, 76);
    if (name == "splashSquare2")
        return plain(2 * 93, 2 * 93);
    if (name == "splashWide2")
        return plain(2 * 361, 2 * 76);
    return {};
}

} // namespace forms
