// A picture box: shows a picture, and is a surface that icons are drawn on.
#pragma once

#include "forms/control.h"
#include "forms/surface.h"

namespace forms {

class PictureBox : public Control {
  public:
    PictureBox() : Control(ControlKind::pictureBox) {
        tabStop = false;
        setBackColour(maskGrey);
    }

    /// While on, drawing goes to a surface in memory of the box's size; what it holds outlives switching off.
    void setAutoRedraw(bool on);
    /// Fills the surface with the back colour.
    void cls();
    /// Device context of the surface; none unless persistent drawing is on, and none without a surface.
    platform::HDC hDC() const;
    /// Shows what has been drawn.
    void refresh();
    /// A picture of the box's size: what has been drawn, that is every pixel that has not the back colour,
    /// over the picture if there is one, over the back colour.
    Picture image() const;

    const Picture& picture() const { return picture_; }
    /// Shows a picture, or none if it is empty, and drops what has been drawn.
    void setPicture(const Picture& picture);
    /// What it shows grows with it; what has been drawn is dropped.
    void resolutionChanged() override;
    /// From then on it holds no picture and has no surface.
    void windowLost() override;

  private:
    /// A length of the box; at least one pixel, since a surface cannot be without.
    int pixels(float twips) const;
    Colour background() const { return backColour().value_or(maskGrey); }

    bool autoRedraw_ = false;
    Picture picture_;
    Resolution pictured_; ///< that the form had when the picture came
    std::unique_ptr<Surface> surface_;
};

} // namespace forms
