// A toolbar: the system's own control. Its rows are those of the model, so that both agree on the height.
#include "win32/forms/bitmaps.h"
#include "win32/forms/peers.h"
#include "win32/forms/windowPeer.h"

#include "forms/toolbar.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace win32 {

namespace {

/// Posted to ourselves: the buttons have changed.
constexpr UINT rebuildMessage = WM_APP + 1;

/// Command numbers of the buttons begin here.
constexpr int firstCommand = 1;

class ToolbarPeer : public WindowPeer {
  public:
    explicit ToolbarPeer(forms::Toolbar& toolbar) : WindowPeer(toolbar), toolbar_(toolbar) {
        createChild(TOOLBARCLASSNAMEA, {},
                    TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | TBSTYLE_TRANSPARENT | CCS_NODIVIDER |
                        CCS_NOPARENTALIGN | CCS_NORESIZE | WS_CLIPSIBLINGS);
        if (handle() == nullptr)
            return;
        SendMessageA(handle(), TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
        SendMessageA(handle(), TB_SETUNICODEFORMAT, FALSE, 0);
        showWholeTips();
        changed(forms::Property::imageList);
        changed(forms::Property::buttons);
    }

    ~ToolbarPeer() override {
        if (handle() != nullptr)
            SendMessageA(handle(), TB_SETIMAGELIST, 0, 0);
        if (images_ != nullptr)
            ImageList_Destroy(images_);
    }

    void changed(forms::Property property) override {
        if (handle() == nullptr)
            return;
        switch (property) {
        case forms::Property::imageList:
            imagesDirty_ = true;
            rebuildLater();
            break;
        case forms::Property::buttons:
            rebuildLater();
            break;
        default:
            WindowPeer::changed(property);
            break;
        }
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
        case rebuildMessage:
        case WM_PAINT:
            rebuild();
            break;
        case WM_MOUSEMOVE:
        case WM_LBUTTONDOWN:
            rebuild();
            break;
        case WM_LBUTTONUP:
            return released(message, wParam, lParam);
        case TB_GETROWS:
        case TB_GETITEMRECT:
        case TB_BUTTONCOUNT:
            // Asked from outside: the answer is to be the present one.
            if (!rebuilding_)
                rebuild();
            break;
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

    void showWholeTips() {
        const auto tips = reinterpret_cast<HWND>(SendMessageA(handle(), TB_GETTOOLTIPS, 0, 0)); // NOLINT
        if (tips != nullptr)
            SetWindowLongA(tips, GWL_STYLE, GetWindowLongA(tips, GWL_STYLE) | TTS_NOPREFIX | TTS_ALWAYSTIP);
    }

    void copyTip(int commandNumber, char* text, int size) const {
        const auto index = static_cast<std::size_t>(commandNumber - firstCommand);
        if (text == nullptr || size <= 0 || index >= toolbar_.buttons().size())
            return;
        const std::string& tip = toolbar_.buttons()[index].toolTipText;
        const std::size_t length = std::min(tip.size(), static_cast<std::size_t>(size) - 1);
        std::memcpy(text, tip.data(), length);
        text[length] = '\0';
    }

    /// A list of buttons is built one by one; the window follows once.
    void rebuildLater() {
        if (!dirty_)
            PostMessageA(handle(), rebuildMessage, 0, 0);
        dirty_ = true;
    }

    void rebuild() {
        if (!dirty_ || handle() == nullptr)
            return;
        dirty_ = false;
        rebuilding_ = true;
        SendMessageA(handle(), WM_SETREDRAW, FALSE, 0);
        for (auto left = SendMessageA(handle(), TB_BUTTONCOUNT, 0, 0); left > 0; --left)
            SendMessageA(handle(), TB_DELETEBUTTON, static_cast<WPARAM>(left - 1), 0);
        renewImages();
        const std::vector<TBBUTTON> buttons = nativeButtons();
        SendMessageA(handle(), TB_ADDBUTTONSA, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
        SendMessageA(handle(), TB_SETBUTTONSIZE, 0,
                     MAKELPARAM(forms::toolbarButtonWidth, forms::toolbarButtonHeight));
        SendMessageA(handle(), WM_SETREDRAW, TRUE, 0);
        rebuilding_ = false;
        InvalidateRect(handle(), nullptr, TRUE);
    }

    void renewImages() {
        if (!imagesDirty_)
            return;
        imagesDirty_ = false;
        const HIMAGELIST made =
            toolbar_.imageList() == nullptr ? nullptr : nativeImageList(*toolbar_.imageList());
        if (toolbar_.imageList() != nullptr)
            SendMessageA(handle(), TB_SETBITMAPSIZE, 0,
                         MAKELPARAM(toolbar_.imageList()->imageWidth, toolbar_.imageList()->imageHeight));
        SendMessageA(handle(), TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(made));
        if (images_ != nullptr)
            ImageList_Destroy(images_);
        images_ = made;
    }

    std::vector<TBBUTTON> nativeButtons() const {
        const forms::ToolbarLayout& layout = toolbar_.layout();
        std::vector<TBBUTTON> buttons;
        buttons.reserve(toolbar_.buttons().size());
        std::size_t lastShown = 0;
        for (const forms::ToolbarButton& button : toolbar_.buttons()) {
            const std::size_t index = buttons.size();
            const forms::ButtonCell& cell = layout.cells[index];
            const bool separator = button.style == forms::ButtonStyle::separator;
            TBBUTTON made{};
            made.iBitmap = separator           ? forms::toolbarSeparatorWidth
                           : button.image == 0 ? I_IMAGENONE
                                               : button.image - 1;
            made.idCommand = firstCommand + static_cast<int>(index);
            made.fsState = TBSTATE_ENABLED;
            made.fsStyle = separator ? BTNS_SEP : BTNS_BUTTON;
            made.iString = -1;
            if (cell.hidden) {
                made.fsState |= TBSTATE_HIDDEN;
            } else {
                // The break stands on the last button that is shown in a row.
                if (index > 0 && cell.row > layout.cells[lastShown].row)
                    buttons[lastShown].fsState |= TBSTATE_WRAP;
                lastShown = index;
            }
            buttons.push_back(made);
        }
        return buttons;
    }

    forms::Toolbar& toolbar_;
    HIMAGELIST images_ = nullptr;
    int clicked_ = 0; ///< command number of the button that the control has reported
    bool dirty_ = false;
    bool imagesDirty_ = true;
    bool rebuilding_ = false;
};

} // namespace

std::unique_ptr<forms::Peer> makeToolbarPeer(forms::Toolbar& toolbar) {
    return std::make_unique<ToolbarPeer>(toolbar);
}

} // namespace win32
