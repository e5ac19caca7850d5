// Controls that only show something: a label, a dividing line, an image.
#pragma once

#include "forms/captioned.h"
#include "forms/pictured.h"

namespace forms {

class Label : public Captioned<Control> {
  public:
    Label() : Captioned(ControlKind::label) { tabStop = false; }

    Alignment alignment = Alignment::left;
    bool autoSize = false;
    bool wordWrap = false;
    bool border = false;
    bool mnemonic = true; ///< an ampersand in the caption marks one; otherwise it is shown

    std::function<void()> onClick;
    /// Called by the peer. A disabled label ignores it.
    void click();
};

class Line : public Control {
  public:
    Line() : Control(ControlKind::line) { tabStop = false; }
};

class Image : public Pictured<Control> {
  public:
    Image() : Pictured(ControlKind::image) { tabStop = false; }

    std::function<void()> onClick;
    /// Called by the peer. A disabled image ignores it.
    void click();
};

} // namespace forms
