// List box and drop-down list.
#include "win32/forms/peers.h"
#include "win32/forms/windowPeer.h"

#include "forms/listBox.h"

namespace win32 {

namespace {

/// Posted to ourselves: the filling is over.
constexpr UINT filledMessage = WM_APP + 1;

/// The messages in which the two kinds of window differ.
struct Dialect {
    UINT count;
    UINT add;
    UINT clear;
    UINT select;
    UINT selected;
    WORD selectionChanged;
};

constexpr Dialect listDialect{LB_GETCOUNT,  LB_ADDSTRING, LB_RESETCONTENT,
                              LB_SETCURSEL, LB_GETCURSEL, LBN_SELCHANGE};
constexpr Dialect comboDialect{CB_GETCOUNT,  CB_ADDSTRING, CB_RESETCONTENT,
                               CB_SETCURSEL, CB_GETCURSEL, CBN_SELCHANGE};

class ListPeer : public WindowPeer {
  public:
    void changed(forms::Property property) override {
        if (handle() == nullptr)
            return;
        switch (property) {
        case forms::Property::items:
            follow();
            break;
        case forms::Property::selection:
            SendMessageA(handle(), dialect_.select, static_cast<WPARAM>(list_.listIndex()), 0);
            break;
        default:
            WindowPeer::changed(property);
            break;
        }
    }

    void command(WORD code, WORD /*id*/) override {
        if (code == dialect_.selectionChanged)
            list_.selected(static_cast<int>(SendMessageA(handle(), dialect_.selected, 0, 0)));
    }

  protected:
    ListPeer(forms::ItemList& list, const Dialect& dialect)
        : WindowPeer(list), list_(list), dialect_(dialect) {}

    /// Brings rows and selection of a new window in step.
    void fill() {
        if (handle() == nullptr)
            return;
        follow();
        changed(forms::Property::selection);
    }

  private:
    /// Rows are only appended, or all of them removed.
    void follow() {
        auto shown = static_cast<int>(SendMessageA(handle(), dialect_.count, 0, 0));
        if (list_.listCount() < shown) {
            SendMessageA(handle(), dialect_.clear, 0, 0);
            shown = 0;
        }
        for (; shown < list_.listCount(); ++shown)
            SendMessageA(handle(), dialect_.add, 0, reinterpret_cast<LPARAM>(list_.list(shown).c_str()));
    }

    forms::ItemList& list_;
    const Dialect& dialect_;
};

class ListBoxPeer : public ListPeer {
  public:
    explicit ListBoxPeer(forms::ListBox& list) : ListPeer(list, listDialect) {
        createChild("LISTBOX", {}, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_USETABSTOPS | WS_VSCROLL,
                    WS_EX_CLIENTEDGE);
        fill();
    }

    void changed(forms::Property property) override {
        if (property == forms::Property::items && handle() != nullptr)
            holdPainting();
        ListPeer::changed(property);
    }

  protected:
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != filledMessage)
            return defaultMessage(message, wParam, lParam);
        holding_ = false;
        SendMessageA(handle(), WM_SETREDRAW, TRUE, 0);
        InvalidateRect(handle(), nullptr, TRUE);
        return 0;
    }

  private:
    /// Rows come one by one, thousands of them at times: they are painted once, when all are there.
    void holdPainting() {
        if (holding_ || PostMessageA(handle(), filledMessage, 0, 0) == FALSE)
            return;
        holding_ = true;
        SendMessageA(handle(), WM_SETREDRAW, FALSE, 0);
    }

    bool holding_ = false; ///< the window does not paint until the filling is over
};

class ComboBoxPeer : public ListPeer {
  public:
    explicit ComboBoxPeer(forms::ComboBox& list) : ListPeer(list, comboDialect) {
        createChild("COMBOBOX", {}, CBS_DROPDOWNLIST | CBS_HASSTRINGS | WS_VSCROLL);
        fill();
    }

  protected:
    /// The window's height is that of the field and the open list together; a short list takes less.
    RECT childPlace() const override {
        constexpr LONG listHeight = 160;
        RECT place = WindowPeer::childPlace();
        place.bottom += listHeight;
        return place;
    }
};

} // namespace

std::unique_ptr<forms::Peer> makeListBoxPeer(forms::ListBox& list) {
    return std::make_unique<ListBoxPeer>(list);
}

std::unique_ptr<forms::Peer> makeComboBoxPeer(forms::ComboBox& list) {
    return std::make_unique<ComboBoxPeer>(list);
}

} // namespace win32
