// A grid of icons: the system's list view, which scrolls, hears the keyboard and speaks to screen readers by
// itself.
#include "win32/forms/bitmaps.h"
#include "win32/forms/peers.h"
#include "win32/forms/themes.h"
#include "win32/forms/windowPeer.h"

#include "forms/iconGrid.h"

#include <algorithm>
#include <string>
#include <utility>

namespace win32 {

namespace {

/// Posted to ourselves: the selection has gone from an icon.
constexpr UINT selectionGoneMessage = WM_APP + 1;

/// Distance from icon to icon, in pixels of the design: the icon, its number below it, and some air.
constexpr int columnWidth = 56;
constexpr int rowHeight = 60;

constexpr int none = -1;

bool isClear(const forms::Picture& picture) {
    return std::ranges::none_of(picture.pixels(), [](std::uint32_t pixel) { return pixel >> 24U != 0; });
}

class IconGridPeer : public WindowPeer {
  public:
    explicit IconGridPeer(forms::IconGrid& grid) : WindowPeer(grid), grid_(grid) {
        // The pictures stay ours: the window may die before us.
        createChild(WC_LISTVIEWA, {},
                    LVS_ICON | LVS_AUTOARRANGE | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS,
                    WS_EX_CLIENTEDGE);
        if (handle() == nullptr)
            return;
        // The look of the system's own folders: a box around icon and number.
        setTheme(handle(), L"Explorer");
        SendMessageA(handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_DOUBLEBUFFER, LVS_EX_DOUBLEBUFFER);
        spread();
        fill();
        showSelection();
    }

    ~IconGridPeer() override {
        if (handle() != nullptr)
            SendMessageA(handle(), LVM_SETIMAGELIST, LVSIL_NORMAL, 0);
        if (images_ != nullptr)
            ImageList_Destroy(images_);
    }

    void changed(forms::Property property) override {
        if (handle() == nullptr)
            return;
        switch (property) {
        case forms::Property::items:
            fill();
            break;
        case forms::Property::resolution:
            WindowPeer::changed(property);
            spread();
            fill();
            showSelection();
            break;
        case forms::Property::selection:
            showSelection();
            break;
        default:
            WindowPeer::changed(property);
            break;
        }
    }

    LRESULT notify(NMHDR& header) override {
        switch (header.code) {
        case LVN_GETDISPINFOA:
        case LVN_GETDISPINFOW: // both records begin alike
            givePicture(reinterpret_cast<NMLVDISPINFOA&>(header).item);
            break;
        case LVN_ITEMCHANGED:
            itemChanged(reinterpret_cast<const NMLISTVIEW&>(header));
            break;
        case NM_DBLCLK:
            doubleClicked_ = reinterpret_cast<const NMITEMACTIVATE&>(header).iItem;
            break;
        default:
            break;
        }
        return 0;
    }

  protected:
    /// The events come after the window's own handling: they may show other icons or unload the form.
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == selectionGoneMessage) {
            keepSelection();
            return 0;
        }
        ++depth_;
        const LRESULT result = defaultMessage(message, wParam, lParam);
        if (--depth_ > 0)
            return result;
        // A scroll bar that comes with the icons takes a column's room, and the rows move once more when they
        // are painted for the first time.
        if (message == WM_PAINT && std::exchange(unsettled_, false))
            bringInSight();
        if (const int selected = std::exchange(selected_, none); selected != none)
            grid_.selected(selected);
        if (const int twice = std::exchange(doubleClicked_, none); twice != none)
            grid_.doubleClicked(twice);
        return result;
    }

  private:
    void spread() {
        const forms::Resolution resolution = grid_.resolution();
        SendMessageA(handle(), LVM_SETICONSPACING, 0,
                     MAKELPARAM(resolution.scaled(columnWidth), resolution.scaled(rowHeight)));
    }

    void fill() {
        following_ = true;
        SendMessageA(handle(), WM_SETREDRAW, FALSE, 0);
        SendMessageA(handle(), LVM_DELETEALLITEMS, 0, 0);
        renewImages();
        SendMessageA(handle(), LVM_SETITEMCOUNT, static_cast<WPARAM>(grid_.count()), 0);
        for (int index = 0; index < grid_.count(); ++index) {
            std::string number = std::to_string(index);
            LVITEMA item{};
            item.mask = LVIF_TEXT | LVIF_IMAGE;
            item.iItem = index;
            item.iImage = I_IMAGECALLBACK;
            item.pszText = number.data();
            SendMessageA(handle(), LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
        }
        SendMessageA(handle(), WM_SETREDRAW, TRUE, 0);
        InvalidateRect(handle(), nullptr, TRUE);
        unsettled_ = true;
        following_ = false;
    }

    void renewImages() {
        const HIMAGELIST made = ImageList_Create(grid_.iconSide(), grid_.iconSide(), ILC_COLOR32, 0, 1);
        ImageList_SetImageCount(made, static_cast<UINT>(grid_.count()));
        SendMessageA(handle(), LVM_SETIMAGELIST, LVSIL_NORMAL, reinterpret_cast<LPARAM>(made));
        if (images_ != nullptr)
            ImageList_Destroy(images_);
        images_ = made;
    }

    /// The window is about to paint an icon for the first time.
    void givePicture(LVITEMA& item) {
        if ((item.mask & LVIF_IMAGE) == 0 || item.iItem < 0 || item.iItem >= grid_.count())
            return;
        item.mask |= LVIF_DI_SETITEM;
        const forms::Picture picture = grid_.picture(item.iItem);
        // The system takes a bitmap without any opacity for one that has none to tell, and paints it black.
        if (isClear(picture)) {
            item.iImage = I_IMAGENONE;
            return;
        }
        const HBITMAP bitmap = bitmapOf(picture);
        ImageList_Replace(images_, item.iItem, bitmap, nullptr);
        DeleteObject(bitmap);
        item.iImage = item.iItem;
    }

    void itemChanged(const NMLISTVIEW& change) {
        if (following_ || (change.uChanged & LVIF_STATE) == 0)
            return;
        const bool was = (change.uOldState & LVIS_SELECTED) != 0;
        const bool is = (change.uNewState & LVIS_SELECTED) != 0;
        if (is && !was)
            selected_ = change.iItem;
        else if (was && !is)
            PostMessageA(handle(), selectionGoneMessage, 0, 0);
    }

    /// A click beside the icons takes the selection away; what has been chosen stays chosen.
    void keepSelection() {
        if (grid_.selectedIndex() != none && SendMessageA(handle(), LVM_GETSELECTEDCOUNT, 0, 0) == 0)
            mark(grid_.selectedIndex(), LVIS_SELECTED);
    }

    void showSelection() {
        if (grid_.selectedIndex() == none) {
            mark(none, 0);
            return;
        }
        mark(grid_.selectedIndex(), LVIS_SELECTED | LVIS_FOCUSED);
        bringInSight();
    }

    void bringInSight() {
        if (grid_.selectedIndex() != none)
            SendMessageA(handle(), LVM_ENSUREVISIBLE, static_cast<WPARAM>(grid_.selectedIndex()), FALSE);
    }

    /// Gives an icon, or all of them, this state of selection and focus.
    void mark(int index, UINT state) {
        following_ = true;
        LVITEMA item{};
        item.stateMask = state == 0 ? LVIS_SELECTED : state;
        item.state = state;
        SendMessageA(handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
        following_ = false;
    }

    forms::IconGrid& grid_;
    HIMAGELIST images_ = nullptr; ///< one for each icon, blank until it is seen
    int depth_ = 0;               ///< messages that are being handled, one inside the other
    int selected_ = none;         ///< what the user has done in the message that is being handled
    int doubleClicked_ = none;
    bool unsettled_ = false; ///< new icons have not been painted yet
    bool following_ = false; ///< the window is being brought in step with the model
};

} // namespace

std::unique_ptr<forms::Peer> makeIconGridPeer(forms::IconGrid& grid) {
    return std::make_unique<IconGridPeer>(grid);
}

} // namespace win32
