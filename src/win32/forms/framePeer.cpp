// Frames: windows of a class of our own that draw an etched box.
#include "win32/forms/containerPeer.h"
#include "win32/forms/peers.h"

#include "forms/frame.h"

namespace win32 {

namespace {

constexpr const char* frameClass = "KestrelFrame";

class FramePeer : public ContainerPeer {
  public:
    explicit FramePeer(forms::Frame& frame) : ContainerPeer(frame), frame_(frame) {
        registerClass(frameClass);
        createChild(frameClass, frame.caption(), WS_CLIPSIBLINGS | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT);
        if (handle() == nullptr)
            return;
        // A frame is no stop for the Tab key, only what stands in it.
        SetWindowLongA(handle(), GWL_STYLE, GetWindowLongA(handle(), GWL_STYLE) & ~WS_TABSTOP);
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
            font_ = reinterpret_cast<HFONT>(wParam); // NOLINT(performance-no-int-to-ptr)
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
    /// An etched box with the caption in its upper edge.
    void paint() {
        PAINTSTRUCT paint;
        const HDC dc = BeginPaint(handle(), &paint);
        if (frame_.border) {
            RECT box;
            GetClientRect(handle(), &box);
            const RECT whole = box;
            const HGDIOBJ former = SelectObject(dc, font_);
            TEXTMETRICA metrics{};
            GetTextMetricsA(dc, &metrics);
            box.top = frame_.caption().empty() ? 0 : metrics.tmHeight / 2;
            DrawEdge(dc, &box, EDGE_ETCHED, BF_RECT);
            if (!frame_.caption().empty())
                drawCaption(dc, whole, metrics.tmHeight);
            SelectObject(dc, former);
        }
        EndPaint(handle(), &paint);
    }

    void drawCaption(HDC dc, const RECT& whole, LONG height) {
        constexpr LONG indent = 9;
        RECT text{whole.left + indent, whole.top, whole.right - indent, whole.top + height};
        SetBkColor(dc, background().value_or(GetSysColor(COLOR_BTNFACE)));
        const COLORREF colour =
            frame_.foreColour() ? nativeColour(*frame_.foreColour()) : GetSysColor(COLOR_BTNTEXT);
        SetTextColor(dc, IsWindowEnabled(handle()) != FALSE ? colour : GetSysColor(COLOR_GRAYTEXT));
        DrawTextA(dc, frame_.caption().c_str(), -1, &text, DT_LEFT | DT_SINGLELINE);
    }

    forms::Frame& frame_;
    HFONT font_ = nullptr;
};

} // namespace

std::unique_ptr<forms::Peer> makeFramePeer(forms::Frame& frame) {
    return std::make_unique<FramePeer>(frame);
}

} // namespace win32
