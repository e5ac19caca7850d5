// What the controls that show a picture of the program's own share.
#pragma once

#include "forms/control.h"

#include <functional>

namespace forms {

/// A control, or a container, with a picture of the design's size.
template <typename Base>
class Pictured : public Base {
  public:
    using Base::Base;

    const Picture& picture() const { return picture_; }
    void setPicture(const Picture& picture) {
        picture_ = picture;
        this->tellPeer(Property::picture);
    }

    /// Draws the picture for a finer screen than the design's. Without it the design's picture grows.
    std::function<Picture(Resolution resolution)> drawnFor;

    /// The picture in the pixels of the control's form.
    Picture shown() const {
        const Resolution resolution = this->resolution();
        if (resolution == Resolution() || picture_.empty())
            return picture_;
        return (drawnFor ? drawnFor(resolution) : picture_)
            .scaled(resolution.scaled(picture_.width()), resolution.scaled(picture_.height()));
    }

  private:
    Picture picture_;
};

} // namespace forms
