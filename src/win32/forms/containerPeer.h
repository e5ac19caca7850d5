// The peer of a control that others stand in.
#pragma once

#include "win32/forms/windowPeer.h"

namespace win32 {

/// A peer of a container: passes notifications on to its children's peers and gives them their colours.
class ContainerPeer : public WindowPeer {
  public:
    ~ContainerPeer() override;

    void changed(forms::Property property) override;

    /// The colour of the area that the children stand on: the container's own, else that of the containers
    /// around it. None is the system's.
    virtual std::optional<COLORREF> background() const;
    /// Whether that is a colour of the program's own, and not the system's or its theme's.
    virtual bool hasOwnBackground() const;

  protected:
    using WindowPeer::WindowPeer;
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    LRESULT childColour(HDC dc, HWND child);

    HBRUSH brush_ = nullptr;
    COLORREF brushColour_ = 0;
};

} // namespace win32
