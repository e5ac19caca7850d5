// A toolbar: the system's own control, which wraps its buttons by itself. The model has its height from here.
#include "win32/common/refusal.h"
#include "win32/common/views.h"
#include "win32/common/windowChanges.h"
#include "win32/forms/bitmaps.h"
#include "win32/forms/peers.h"
#include "win32/forms/windowPeer.h"

#include "forms/form.h"
#include "forms/toolbar.h"
#include "forms/toolbarLayout.h"
#include "runtime/characters.h"

#include <string_view>
#include <utility>
#include <vector>

namespace win32 {

namespace {

/// Posted to ourselves: there is something to catch up with.
constexpr UINT catchUpMessage = WM_APP + 1;

/// Command numbers of the buttons begin here.
constexpr int firstCommand = 1;

class ToolbarPeer : public WindowPeer {
  public:
    explicit ToolbarPeer(forms::Toolbar& toolbar) : WindowPeer(toolbar), toolbar_(toolbar) {
        createChild(TOOLBARCLASSNAMEA, {},
                    TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | TBSTYLE_TRANSPARENT | TBSTYLE_WRAPABLE | CCS_NODIVIDER |
                        CCS_NOPARENTALIGN | CCS_NORESIZE | WS_CLIPSIBLINGS);
        if (handle() == nullptr)
            return;
        SendMessageA(handle(), TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
        SendMessageA(handle(), TB_SETUNICODEFORMAT, FALSE, 0);
        SendMessageA(handle(), TB_SETMAXTEXTROWS, 0, 0);
        showWholeTips();
        behind_ = true;
        catchUp();
    }

    ~ToolbarPeer() override {
        if (handle() != nullptr) {
            SendMessageA(handle(), TB_SETIMAGELIST, 0, 0);
            SendMessageA(handle(), TB_SETTOOLTIPS, 0, 0);
        }
        // A control that dies with its host takes its tips along, but not where the host's program has been
        // killed: then its window has heard nothing but that it is gone.
        if (tips_ != nullptr && IsWindow(tips_) != FALSE)
            destroyWindow(tips_);
        if (images_ != nullptr)
            ImageList_Destroy(images_);
    }

    void changed(forms::Property property) override {
        if (handle() == nullptr)
            return;
        switch (property) {
        case forms::Property::imageList:
        case forms::Property::resolution:
            imagesDirty_ = true;
            catchUpLater();
            break;
        case forms::Property::buttons:
        case forms::Property::position:
            catchUpLater();
            break;
        default:
            WindowPeer::changed(property);
            break;
        }
    }

    /// The buttons are put in anew after each change, of the width too: how the control breaks its rows
    /// depends on where it has broken them before (where separators are adjacent, under Wine), and the same
    /// toolbar is to look the same whatever has been done to it.
    void catchUp() override {
        if (!behind_ || handle() == nullptr)
            return;
        behind_ = false;
        const Seeing seen(viewOf(handle()));
        // Nothing is painted on the way, and what is painted in the end is painted once.
        SendMessageA(handle(), WM_SETREDRAW, FALSE, 0);
        removeButtons();
        // Buttons that come find the width that they are to be wrapped to.
        const forms::ToolbarMetrics sizes(toolbar_.resolution());
        takePlace(sizes.buttonHeight);
        if (!renewImages()) {
            noteRefusal();
            toolbar_.form()->windowLost();
            return;
        }
        SendMessageA(handle(), TB_SETBUTTONSIZE, 0, MAKELPARAM(sizes.buttonWidth, sizes.buttonHeight));
        const std::vector<TBBUTTON> buttons = nativeButtons(sizes);
        SendMessageA(handle(), TB_ADDBUTTONSA, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
        // Buttons that come with names have all been given the size that the control reckons from pictures
        // and names, and rows for that: it is to forget both.
        for (const TBBUTTON& button : buttons)
            SendMessageA(handle(), TB_SETSTATE, static_cast<WPARAM>(button.idCommand), TBSTATE_ENABLED);
        SendMessageA(handle(), TB_SETBUTTONSIZE, 0, MAKELPARAM(sizes.buttonWidth, sizes.buttonHeight));
        SendMessageA(handle(), TB_AUTOSIZE, 0, 0);
        const int height = lowestEdge(buttons.size());
        toolbar_.rowsLaidOut(height);
        takePlace(height);
        SendMessageA(handle(), WM_SETREDRAW, TRUE, 0);
        InvalidateRect(handle(), nullptr, TRUE);
    }

    LRESULT notify(NMHDR& header) override {
        if (header.code == TBN_GETINFOTIPA) {
            auto& tip = reinterpret_cast<NMTBGETINFOTIPA&>(header);
            copyTip(tip.iItem, tip.pszText, tip.cchTextMax);
        }
        return 0;
    }

    void command(WORD /*code*/, WORD id) override { clicked_ = id; }

  protected:
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case catchUpMessage:
        case WM_PAINT:
        case WM_MOUSEMOVE:
        case WM_LBUTTONDOWN:
        // Asked from outside: the answer is to be the present one.
        case TB_GETROWS:
        case TB_GETITEMRECT:
        case TB_BUTTONCOUNT:
            catchUp();
            break;
        case WM_LBUTTONUP:
            return released(message, wParam, lParam);
        default:
            break;
        }
        return defaultMessage(message, wParam, lParam);
    }

  private:
    /// The click comes after the control's own handling: the event may build the toolbar anew.
    LRESULT released(UINT message, WPARAM wParam, LPARAM lParam) {
        clicked_ = 0;
        const LRESULT result = defaultMessage(message, wParam, lParam);
        if (const int clicked = std::exchange(clicked_, 0); clicked >= firstCommand)
            toolbar_.clickButton(static_cast<std::size_t>(clicked - firstCommand));
        return result;
    }

    /// The control makes the window of its tips when it is asked for it, or shows one; the top window that it
    /// then stands in owns it. Asked for here that is our form, which is not in a host yet: a host that owned
    /// it would be joined with us by it, also one that hangs.
    void showWholeTips() {
        tips_ = reinterpret_cast<HWND>(SendMessageA(handle(), TB_GETTOOLTIPS, 0, 0));
        if (tips_ != nullptr)
            SetWindowLongA(tips_, GWL_STYLE, GetWindowLongA(tips_, GWL_STYLE) | TTS_NOPREFIX | TTS_ALWAYSTIP);
    }

    void copyTip(int commandNumber, char* text, int size) const {
        const auto index = static_cast<std::size_t>(commandNumber - firstCommand);
        if (text == nullptr || size <= 0 || index >= toolbar_.buttons().size())
            return;
        const std::string_view tip =
            runtime::cutToSize(toolbar_.buttons()[index].toolTipText, static_cast<std::size_t>(size) - 1);
        text[tip.copy(text, tip.size())] = '\0';
    }

    /// A list of buttons is built one by one; the window follows once.
    void catchUpLater() {
        if (!behind_)
            PostMessageA(handle(), catchUpMessage, 0, 0);
        behind_ = true;
    }

    /// The control has no tips meanwhile: it would tell them the new place of each other button for each one
    /// that goes, a third of all that a toolbar of 400 buttons costs. So the tips hear of those that go here.
    void removeButtons() {
        SendMessageA(handle(), TB_SETTOOLTIPS, 0, 0);
        for (auto left = SendMessageA(handle(), TB_BUTTONCOUNT, 0, 0); left > 0; --left) {
            TTTOOLINFOA gone{};
            gone.cbSize = TTTOOLINFOA_V2_SIZE;
            gone.hwnd = handle();
            gone.uId = static_cast<UINT_PTR>(firstCommand + left - 1);
            SendMessageA(tips_, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&gone));
            SendMessageA(handle(), TB_DELETEBUTTON, static_cast<WPARAM>(left - 1), 0);
        }
        SendMessageA(handle(), TB_SETTOOLTIPS, reinterpret_cast<WPARAM>(tips_), 0);
    }

    /// Gives the window its place, with a height in pixels.
    void takePlace(int height) {
        SetWindowPos(handle(), nullptr, pixels(toolbar_.left()), pixels(toolbar_.top()),
                     pixels(toolbar_.width()), height, SWP_NOZORDER | SWP_NOACTIVATE);
    }

    /// Of so many buttons that the control has, in pixels: that of the last, which stands in the last row.
    /// One row if there are none.
    int lowestEdge(std::size_t buttons) {
        RECT last{0, 0, 0, forms::ToolbarMetrics(toolbar_.resolution()).buttonHeight};
        if (buttons > 0)
            SendMessageA(handle(), TB_GETITEMRECT, buttons - 1, reinterpret_cast<LPARAM>(&last));
        return static_cast<int>(last.bottom);
    }

    /// False if the system has no room for the first pictures: nobody is to have a toolbar of blank buttons.
    /// One that has had pictures goes on without, since its buttons work.
    bool renewImages() {
        if (!imagesDirty_)
            return true;
        imagesDirty_ = false;
        const HIMAGELIST made =
            toolbar_.imageList() == nullptr ? nullptr : nativeImageList(*toolbar_.imageList());
        if (toolbar_.imageList() != nullptr)
            SendMessageA(
                handle(), TB_SETBITMAPSIZE, 0,
                MAKELPARAM(toolbar_.imageList()->pictureWidth(), toolbar_.imageList()->pictureHeight()));
        SendMessageA(handle(), TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(made));
        if (images_ != nullptr)
            ImageList_Destroy(images_);
        images_ = made;
        hadImages_ = hadImages_ || made != nullptr;
        return hadImages_ || toolbar_.imageList() == nullptr;
    }

    std::vector<TBBUTTON> nativeButtons(const forms::ToolbarMetrics& sizes) const {
        std::vector<TBBUTTON> buttons;
        buttons.reserve(toolbar_.buttons().size());
        for (const forms::ToolbarButton& button : toolbar_.buttons()) {
            const bool separator = button.style == forms::ButtonStyle::separator;
            TBBUTTON made{};
            made.iBitmap = separator           ? sizes.separatorWidth
                           : button.image == 0 ? I_IMAGENONE
                                               : button.image - 1;
            made.idCommand = firstCommand + static_cast<int>(buttons.size());
            made.fsState = TBSTATE_ENABLED;
            made.fsStyle = separator ? BTNS_SEP : BTNS_BUTTON | BTNS_NOPREFIX;
            // Never shown: the name that screen readers tell. The control keeps a copy.
            made.iString =
                button.toolTipText.empty() ? -1 : reinterpret_cast<INT_PTR>(button.toolTipText.c_str());
            buttons.push_back(made);
        }
        return buttons;
    }

    forms::Toolbar& toolbar_;
    HIMAGELIST images_ = nullptr;
    HWND tips_ = nullptr; ///< the control's own window
    int clicked_ = 0;     ///< command number of the button that the control has reported
    bool behind_ = false; ///< the window is to follow a change
    bool imagesDirty_ = true;
    bool hadImages_ = false;
};

} // namespace

std::unique_ptr<forms::Peer> makeToolbarPeer(forms::Toolbar& toolbar) {
    return std::make_unique<ToolbarPeer>(toolbar);
}

} // namespace win32
