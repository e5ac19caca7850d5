// A frame: a box with an optional caption, with a window of its own, that other controls stand in.
#pragma once

#include "forms/control.h"

namespace forms {

class Frame : public Container {
  public:
    Frame() : Container(ControlKind::frame) {}

    const std::string& caption() const { return caption_; }
    void setCaption(std::string_view caption);
    /// Without border it is a bare area.
    bool border = true;

  private:
    std::string caption_;
};

} // namespace forms
