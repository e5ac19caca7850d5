// What the controls with a caption share.
#pragma once

#include "forms/control.h"

#include <string>
#include <string_view>

namespace forms {

/// A control, or a container, with a caption. An ampersand in it marks the mnemonic where the control has
/// one.
template <typename Base>
class Captioned : public Base {
  public:
    using Base::Base;

    const std::string& caption() const { return caption_; }
    /// The caption that it has already costs nothing: a dialog's texts are loaded whenever it is opened.
    void setCaption(std::string_view caption) {
        if (caption == caption_)
            return;
        caption_ = std::string(caption);
        this->tellPeer(Property::text);
    }

  private:
    std::string caption_;
};

} // namespace forms
