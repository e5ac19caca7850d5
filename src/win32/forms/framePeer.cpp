// Frames: windows of a class of our own that draw a box with a caption, as the theme has it.
#include "win32/forms/containerPeer.h"
#include "win32/forms/peers.h"
#include "win32/forms/themes.h"

#include "forms/frame.h"

#include <vssym32.h>

#include <algorithm>

namespace win32 {

namespace {

constexpr const char* frameClass = "KestrelFrame";

class FramePeer : public ContainerPeer {
  public:
    explicit FramePeer(forms::Frame& frame) : ContainerPeer(frame), frame_(frame) {
        registerClass(frameClass);
        createChild(frameClass, frame.caption(), WS_CLIPSIBLINGS | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT);
    }

    void changed(forms::Property property) override {
        if (property == forms::Property::text) {
            setWindowText(frame_.caption());
            InvalidateRect(handle(), nullptr, TRUE);
            return;
        }
        ContainerPeer::changed(property);
        if (property == forms::Property::enabled && handle() != nullptr)
            InvalidateRect(handle(), nullptr, TRUE);
    }

  protected:
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case WM_PAINT:
            paint();
            return 0;
        case WM_SETFONT:
            font_ = reinterpret_cast<HFONT>(wParam);
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(font_);
        case WM_GETDLGCODE:
            return DLGC_STATIC;
        default:
            return ContainerPeer::message(message, wParam, lParam);
        }
    }

  private:
    void paint() {
        PAINTSTRUCT paint;
        const HDC dc = BeginPaint(handle(), &paint);
        if (frame_.border) {
            const HGDIOBJ former = SelectObject(dc, font_);
            RECT box;
            GetClientRect(handle(), &box);
            if (!frame_.caption().empty())
                box.top = drawCaption(dc, box);
            drawBox(dc, box);
            SelectObject(dc, former);
        }
        EndPaint(handle(), &paint);
    }

    /// The caption stands in a gap of the box's upper edge. Gives the place of that edge.
    LONG drawCaption(HDC dc, const RECT& whole) {
        const LONG indent = frame_.resolution().scaled(9);
        const LONG gap = frame_.resolution().scaled(2);
        RECT text{whole.left + indent, whole.top, whole.right - indent, whole.bottom};
        DrawTextA(dc, frame_.caption().c_str(), -1, &text, DT_LEFT | DT_SINGLELINE | DT_CALCRECT);
        text.right = std::min(text.right, whole.right - indent);
        const COLORREF colour = textColour(frame_, hasOwnBackground());
        SetTextColor(dc, IsWindowEnabled(handle()) != FALSE ? colour : GetSysColor(COLOR_GRAYTEXT));
        SetBkMode(dc, TRANSPARENT);
        DrawTextA(dc, frame_.caption().c_str(), -1, &text, DT_LEFT | DT_SINGLELINE);
        ExcludeClipRect(dc, text.left - gap, text.top, text.right + gap, text.bottom);
        return (text.bottom - text.top) / 2;
    }

    void drawBox(HDC dc, RECT box) {
        if (const HTHEME theme = openTheme(handle(), L"Button")) {
            const int state = IsWindowEnabled(handle()) != FALSE ? GBS_NORMAL : GBS_DISABLED;
            drawThemed(theme, dc, BP_GROUPBOX, state, box);
            closeTheme(theme);
        } else {
            DrawEdge(dc, &box, EDGE_ETCHED, BF_RECT);
        }
    }

    forms::Frame& frame_;
    HFONT font_ = nullptr;
};

} // namespace

std::unique_ptr<forms::Peer> makeFramePeer(forms::Frame& frame) {
    return std::make_unique<FramePeer>(frame);
}

} // namespace win32
