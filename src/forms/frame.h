// A frame: a box with an optional caption, with a window of its own, that other controls stand in.
#pragma once

#include "forms/captioned.h"

namespace forms {

class Frame : public Captioned<Container> {
  public:
    Frame() : Captioned(ControlKind::frame) {}

    /// Without border it is a bare area.
    bool border = true;
};

} // namespace forms
