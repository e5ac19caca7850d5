// Controls that only show something: label, dividing line, image.
#include "win32/forms/fonts.h"
#include "win32/forms/paintedPeer.h"
#include "win32/forms/peers.h"

#include "forms/label.h"

#include <algorithm>
#include <memory>

namespace win32 {

namespace {

/// A label that has neither border nor colour takes no more room than its text needs. Labels are windows here
/// and come before what they name, for the sake of the mnemonics: a whole box would cover the field that it
/// reaches into.
class LabelPeer : public WindowPeer {
  public:
    explicit LabelPeer(forms::Label& label) : WindowPeer(label), label_(label) {
        createChild("STATIC", label.caption(), styleOf(label));
    }

    void changed(forms::Property property) override {
        if (property == forms::Property::text)
            setWindowText(label_.caption());
        WindowPeer::changed(property);
        if (property == forms::Property::text || property == forms::Property::colours ||
            property == forms::Property::position)
            fit();
    }

  protected:
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT result = defaultMessage(message, wParam, lParam);
        if (message == WM_LBUTTONUP)
            label_.click();
        return result;
    }

    RECT childPlace() const override {
        RECT place = WindowPeer::childPlace();
        const bool tight = !label_.border && !label_.backColour();
        if (!label_.autoSize && !tight)
            return place;
        SIZE text = textSize(place.right - place.left, label_.wordWrap || !label_.autoSize);
        if (label_.autoSize)
            return {place.left, place.top, place.left + text.cx, place.top + text.cy};
        const LONG room = place.right - place.left;
        LONG taken = std::min(room, text.cx);
        // At a finer resolution a line may come out a little wider than in the design and no longer fit. It
        // is shown in one line all the same, and reaches out of its box.
        constexpr int reach = 4; // pixels of the design
        const forms::Resolution resolution = label_.resolution();
        if (resolution != forms::Resolution() && text.cy > place.bottom - place.top)
            if (const SIZE line = textSize(room, false); line.cx <= room + resolution.scaled(reach)) {
                text = line;
                taken = line.cx;
            }
        // One that ends at a field may have hardly any room at its left, so it reaches out at both sides.
        const LONG spare = room - taken;
        if (label_.alignment != forms::Alignment::left)
            place.left += label_.alignment == forms::Alignment::right && spare >= 0 ? spare : spare / 2;
        place.right = place.left + taken;
        place.bottom = std::min(place.bottom, place.top + text.cy);
        return place;
    }

  private:
    static DWORD styleOf(const forms::Label& label) {
        // Without the notification the window would not hear the mouse.
        DWORD common = SS_NOTIFY | (label.border ? WS_BORDER : 0U);
        if (!label.mnemonic)
            common |= SS_NOPREFIX;
        // In a box that can be seen, the upper edge of a line that does not fit would look like dirt.
        if (label.border && label.wordWrap && !label.autoSize)
            common |= SS_EDITCONTROL;
        if (label.alignment == forms::Alignment::right)
            return common | SS_RIGHT;
        if (label.alignment == forms::Alignment::centre)
            return common | SS_CENTER;
        return common | (label.autoSize && !label.wordWrap ? SS_LEFTNOWORDWRAP : SS_LEFT);
    }

    void fit() {
        if (handle() == nullptr)
            return;
        WindowPeer::changed(forms::Property::position);
        InvalidateRect(handle(), nullptr, TRUE);
    }

    /// Size of a window that holds the text, which wraps at the width or stays in one line. Asked before
    /// there is a window, too, which so is made where it belongs.
    SIZE textSize(LONG width, bool wraps) const {
        const std::shared_ptr<const OwnedFont> font = fontOf(label_.font(), label_.resolution().dpi());
        const HDC dc = GetDC(nullptr);
        const HGDIOBJ former = SelectObject(dc, font->handle);
        RECT edge{};
        AdjustWindowRectEx(&edge, styleOf(label_) | WS_CHILD, FALSE, 0);
        const SIZE edges{edge.right - edge.left, edge.bottom - edge.top};
        RECT text{0, 0, std::max<LONG>(1, width - edges.cx), 0};
        const std::string& caption = label_.caption();
        // An empty line is as high as any other.
        DrawTextA(dc, caption.empty() ? " " : caption.c_str(), -1, &text,
                  DT_CALCRECT | DT_EXPANDTABS | (wraps ? DT_WORDBREAK : 0U) |
                      (label_.mnemonic ? 0U : DT_NOPREFIX));
        SelectObject(dc, former);
        ReleaseDC(nullptr, dc);
        // Slanted letters lean out of their cells.
        constexpr LONG slant = 8;
        const LONG lean = label_.font().italic ? text.bottom / slant + 1 : 0;
        return {text.right + lean + edges.cx, text.bottom + edges.cy};
    }

    forms::Label& label_;
};

/// The thickness that a line is drawn with, in pixels: the system draws an edge with two at any resolution.
constexpr int plainLine = 1; // of the design
constexpr LONG etchedLine = 2;

/// Etched, or plain if it has a colour.
class LinePeer : public PaintedPeer {
  public:
    explicit LinePeer(forms::Line& line) : PaintedPeer(line) { createChild("STATIC", {}, 0); }

  protected:
    RECT childPlace() const override {
        RECT place = WindowPeer::childPlace();
        const LONG thickness = control().foreColour() ? control().resolution().scaled(plainLine) : etchedLine;
        place.right = std::max(place.right, place.left + thickness);
        place.bottom = std::max(place.bottom, place.top + thickness);
        return place;
    }

    void paint(HDC dc, const RECT& area) override {
        const COLORREF colour =
            control().foreColour() ? nativeColour(*control().foreColour()) : colourBehind();
        const HBRUSH brush = CreateSolidBrush(colour);
        FillRect(dc, &area, brush);
        DeleteObject(brush);
        if (control().foreColour())
            return;
        RECT edge = area;
        DrawEdge(dc, &edge, EDGE_ETCHED, area.right > area.bottom ? BF_TOP : BF_LEFT);
    }
};

class ImagePeer : public PaintedPeer {
  public:
    explicit ImagePeer(forms::Image& image) : PaintedPeer(image), image_(image) {
        createChild("STATIC", {}, SS_NOTIFY);
    }

  protected:
    void paint(HDC dc, const RECT& area) override { paintPicture(dc, area, image_.shown(), colourBehind()); }

    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT result = PaintedPeer::message(message, wParam, lParam);
        if (message == WM_LBUTTONUP)
            image_.click();
        return result;
    }

  private:
    forms::Image& image_;
};

} // namespace

std::unique_ptr<forms::Peer> makeLabelPeer(forms::Label& label) {
    return std::make_unique<LabelPeer>(label);
}

std::unique_ptr<forms::Peer> makeLinePeer(forms::Line& line) {
    return std::make_unique<LinePeer>(line);
}

std::unique_ptr<forms::Peer> makeImagePeer(forms::Image& image) {
    return std::make_unique<ImagePeer>(image);
}

} // namespace win32
