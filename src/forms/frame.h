// A frame: a box with an optional caption, with a window of its own, that other controls stand in.
#pragma once

#include "forms/captioned.h"

namespace forms {

class Frame : public Captioned<Container> {
  public:
    /// No stop for the Tab key: only what stands in it is.
    Frame() : Captioned(ControlKind::frame) { tabStop = false; }

    /// Without border it is a bare area.
    bool border = true;
};

} // namespace forms
