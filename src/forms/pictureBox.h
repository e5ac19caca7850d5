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

    /// While on, drawing goes to a surface in memory of the box's size that is kept; it outlives switching off.
    bool autoRedraw() const { return autoRedraw_; }
    void setAutoRedraw(bool on);
    /// Fills the surface with the back colour.
    void cls();
    /// Device context of the surface; none unless persistent drawing is on.
    platform::HDC hDC() const;
    /// Shows what has been drawn.
    void refresh();
    /// What has been drawn, over the picture if there is one; a blank picture of the box's size before that.
    Picture image() const;

    const Picture& picture() const { return picture_; }
    /// Shows a picture, or none if it is empty, and drops what has been drawn.
    void setPicture(const Picture& picture);

  private:
    bool autoRedraw_ = false;
    Picture picture_;
    std::unique_ptr<Surface> surface_;
};

} // namespace forms
