// A window that paints itself: all of it at once, so that it never flickers.
#pragma once

#include "win32/forms/windowPeer.h"

#include "forms/picture.h"

namespace win32 {

class PaintedPeer : public WindowPeer {
  public:
    void changed(forms::Property property) override;

  protected:
    using WindowPeer::WindowPeer;

    /// Paints every pixel of the area, which is the window's client area.
    virtual void paint(HDC dc, const RECT& area) = 0;
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// Paints a picture into the top left corner of an area, with its opacity, and the colour behind it
/// everywhere.
void paintPicture(HDC dc, const RECT& area, const forms::Picture& picture, COLORREF behind);

} // namespace win32
