#include "forms/pictureBox.h"

#include <algorithm>

namespace forms {

namespace {

/// A picture in the making: others are laid over it from the top left corner, as far as they reach.
class Canvas {
  public:
    Canvas(int width, int height, Colour colour)
        : width_(width), height_(height),
          pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), opaque | colour) {}

    /// Pixels that `shows` refuses leave what is beneath them.
    template <typename Shows>
    void lay(const Picture& picture, Shows shows) {
        for (int y = 0; y < std::min(height_, picture.height()); ++y)
            for (int x = 0; x < std::min(width_, picture.width()); ++x)
                if (const std::uint32_t pixel = picture.pixel(x, y); shows(pixel))
                    pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                            static_cast<std::size_t>(x)] = opaque | pixel;
    }
    Picture picture() && { return {width_, height_, std::move(pixels_)}; }

  private:
    int width_;
    int height_;
    std::vector<std::uint32_t> pixels_;
};

} // namespace

int PictureBox::pixels(float twips) const {
    return std::max(1, resolution().toPixels(twips));
}

void PictureBox::setAutoRedraw(bool on) {
    autoRedraw_ = on;
    if (on && !surface_ && !lost())
        surface_ = std::make_unique<Surface>(pixels(width()), pixels(height()), background());
}

void PictureBox::resolutionChanged() {
    const auto grown = [this](int length) { return resolution().toPixels(pictured_.toTwips(length)); };
    if (!picture_.empty())
        picture_ = picture_.scaled(grown(picture_.width()), grown(picture_.height()));
    pictured_ = resolution();
    surface_.reset();
    setAutoRedraw(autoRedraw_);
    Control::resolutionChanged();
}

void PictureBox::windowLost() {
    Control::windowLost();
    surface_.reset();
    picture_ = {};
}

void PictureBox::cls() {
    if (surface_)
        surface_->clear(background());
}

platform::HDC PictureBox::hDC() const {
    return autoRedraw_ && surface_ ? surface_->dc() : platform::HDC::none;
}

void PictureBox::refresh() {
    tellPeer(Property::picture);
}

Picture PictureBox::image() const {
    Canvas canvas(pixels(width()), pixels(height()), background());
    canvas.lay(picture_, [](std::uint32_t pixel) { return pixel >> 24 >= 128; });
    if (surface_)
        canvas.lay(surface_->copy(),
                   [back = background()](std::uint32_t pixel) { return (pixel & ~opaque) != back; });
    return std::move(canvas).picture();
}

void PictureBox::setPicture(const Picture& picture) {
    picture_ = lost() ? Picture() : picture;
    pictured_ = resolution();
    if (autoRedraw_)
        cls();
    else
        surface_.reset();
    tellPeer(Property::picture);
}

} // namespace forms
