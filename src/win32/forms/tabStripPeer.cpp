// A tab strip: the system's tab control, with the frames of its pages as children.
#include "win32/forms/containerPeer.h"
#include "win32/forms/dialogKeys.h"
#include "win32/forms/peers.h"
#include "win32/forms/themes.h"

#include "forms/tabStrip.h"

#include <vssym32.h>

namespace win32 {

namespace {

class TabStripPeer : public ContainerPeer {
  public:
    explicit TabStripPeer(forms::TabStrip& tabs) : ContainerPeer(tabs), tabs_(tabs) {
        // Several rows if the captions need them: arrows to scroll through them would hide pages.
        createChild(WC_TABCONTROLA, {}, TCS_MULTILINE | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT);
        if (handle() == nullptr)
            return;
        readPageColour();
        followCaptions();
        changed(forms::Property::selection);
    }

    void changed(forms::Property property) override {
        if (handle() == nullptr)
            return;
        switch (property) {
        case forms::Property::items:
            followCaptions();
            changed(forms::Property::selection);
            break;
        case forms::Property::selection:
            SendMessageA(handle(), TCM_SETCURSEL, static_cast<WPARAM>(tabs_.tab()), 0);
            leaveHiddenPage();
            break;
        default:
            ContainerPeer::changed(property);
            break;
        }
    }

    LRESULT notify(NMHDR& header) override {
        if (header.code == static_cast<UINT>(TCN_SELCHANGE))
            tabs_.selected(static_cast<int>(SendMessageA(handle(), TCM_GETCURSEL, 0, 0)));
        return 0;
    }

    /// The colour that the theme gives a page.
    std::optional<COLORREF> background() const override {
        return tabs_.backColour() ? ContainerPeer::background() : pageColour_;
    }

    bool hasOwnBackground() const override { return tabs_.backColour().has_value(); }

  protected:
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case WM_ERASEBKGND: // the row of tabs stands on what is behind it, not on a page
            return defaultMessage(message, wParam, lParam);
        case WM_THEMECHANGED: {
            const LRESULT result = ContainerPeer::message(message, wParam, lParam);
            readPageColour();
            RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
            return result;
        }
        default:
            return ContainerPeer::message(message, wParam, lParam);
        }
    }

  private:
    /// The focus goes along from the page that has been left to the first control of the one in front.
    void leaveHiddenPage() {
        const HWND focus = GetFocus();
        if (IsChild(handle(), focus) == FALSE || IsWindowVisible(focus) != FALSE)
            return;
        focusFirst(handle());
    }

    /// What the theme paints in the middle of a page; its own hint about that colour may be another one.
    void readPageColour() {
        pageColour_.reset();
        const HTHEME theme = openTheme(handle(), L"Tab");
        if (theme == nullptr)
            return;
        constexpr int size = 64; // beyond any border of a page
        const HDC screen = GetDC(nullptr);
        const HDC memory = CreateCompatibleDC(screen);
        const HBITMAP page = CreateCompatibleBitmap(screen, size, size);
        const HGDIOBJ former = SelectObject(memory, page);
        const RECT area{0, 0, size, size};
        FillRect(memory, &area,
                 GetSysColorBrush(COLOR_BTNFACE)); // shows through where the theme paints nothing
        if (drawThemed(theme, memory, TABP_BODY, 0, area))
            pageColour_ = GetPixel(memory, size / 2, size / 2);
        SelectObject(memory, former);
        DeleteObject(page);
        DeleteDC(memory);
        ReleaseDC(nullptr, screen);
        closeTheme(theme);
    }

    void followCaptions() {
        auto shown = static_cast<int>(SendMessageA(handle(), TCM_GETITEMCOUNT, 0, 0));
        for (; shown > tabs_.tabs(); --shown)
            SendMessageA(handle(), TCM_DELETEITEM, static_cast<WPARAM>(shown - 1), 0);
        for (int tab = 0; tab < tabs_.tabs(); ++tab) {
            std::string caption = tabs_.tabCaption(tab); // the record wants a text that may be written to
            TCITEMA item{};
            item.mask = TCIF_TEXT;
            item.pszText = caption.data();
            SendMessageA(handle(), tab < shown ? TCM_SETITEMA : TCM_INSERTITEMA, static_cast<WPARAM>(tab),
                         reinterpret_cast<LPARAM>(&item));
        }
    }

    forms::TabStrip& tabs_;
    std::optional<COLORREF> pageColour_;
};

} // namespace

std::unique_ptr<forms::Peer> makeTabStripPeer(forms::TabStrip& tabs) {
    return std::make_unique<TabStripPeer>(tabs);
}

} // namespace win32
