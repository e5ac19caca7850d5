#include "store/iconPicture.h"

#include "forms/surface.h"
#include "platform/shell32.h"
#include "platform/user32.h"

#include <algorithm>
#include <vector>

namespace store {

namespace {

constexpr int fullOpacity = 0xFF;

struct OwnedIcon {
    platform::HICON handle = platform::HICON::none;

    OwnedIcon() = default;
    ~OwnedIcon() {
        if (handle != platform::HICON::none)
            platform::DestroyIcon(handle);
    }
    OwnedIcon(const OwnedIcon&) = delete;
    OwnedIcon& operator=(const OwnedIcon&) = delete;
};

forms::Picture drawnOn(forms::Colour colour, platform::HICON icon, int side) {
    const forms::Surface surface(side, side, colour);
    platform::DrawIconEx(surface.dc(), 0, 0, icon, 0, 0, 0, platform::drawNormally);
    return surface.copy();
}

int channel(std::uint32_t pixel, unsigned shift) {
    return static_cast<int>(pixel >> shift & 0xFFU);
}

} // namespace

std::uint32_t pixelSeen(std::uint32_t onBlack, std::uint32_t onWhite) {
    int opacity = 0;
    for (const unsigned shift : {0U, 8U, 16U})
        opacity = std::max(opacity, fullOpacity - (channel(onWhite, shift) - channel(onBlack, shift)));
    opacity = std::min(opacity, fullOpacity);
    if (opacity == 0)
        return 0;
    auto pixel = static_cast<std::uint32_t>(opacity) << 24U;
    // No channel is above the opacity.
    for (const unsigned shift : {0U, 8U, 16U}) {
        const int full = (channel(onBlack, shift) * fullOpacity + opacity / 2) / opacity;
        pixel |= static_cast<std::uint32_t>(full) << shift;
    }
    return pixel;
}

forms::Picture iconPicture(const std::string& file, std::int32_t index, int side) {
    OwnedIcon largeIcon;
    OwnedIcon smallIcon;
    if (platform::ExtractIconExA(file.c_str(), index, largeIcon.handle, smallIcon.handle, side) < 1)
        return {};
    const platform::HICON icon = side == platform::largeIconSide ? largeIcon.handle : smallIcon.handle;
    const forms::Picture onBlack = drawnOn(forms::black, icon, side);
    const forms::Picture onWhite = drawnOn(forms::white, icon, side);
    std::vector<std::uint32_t> pixels;
    pixels.reserve(onBlack.pixels().size());
    for (std::size_t place = 0; place < onBlack.pixels().size() && place < onWhite.pixels().size(); ++place)
        pixels.push_back(pixelSeen(onBlack.pixels()[place], onWhite.pixels()[place]));
    // Without memory for a surface there is no picture.
    if (pixels.size() != static_cast<std::size_t>(side) * static_cast<std::size_t>(side))
        return {};
    return {side, side, std::move(pixels)};
}

} // namespace store
