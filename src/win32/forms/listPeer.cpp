// List box and drop-down list.
#include "win32/common/droppedFiles.h"
#include "win32/forms/peers.h"
#include "win32/forms/windowPeer.h"

#include "forms/listBox.h"

#include <utility>

namespace win32 {

namespace {

/// Posted to ourselves: the rows have changed, and nothing has asked for them since.
constexpr UINT changedMessage = WM_APP + 1;
/// Posted to ourselves: the open list has closed, and what the system tells of it has been heard.
constexpr UINT closedMessage = WM_APP + 2;

/// The messages in which the two kinds of window differ.
struct Dialect {
    UINT count;
    UINT add;
    UINT clear;
    UINT select;
    UINT selected;
};

constexpr Dialect listDialect{LB_GETCOUNT, LB_ADDSTRING, LB_RESETCONTENT, LB_SETCURSEL, LB_GETCURSEL};
constexpr Dialect comboDialect{CB_GETCOUNT, CB_ADDSTRING, CB_RESETCONTENT, CB_SETCURSEL, CB_GETCURSEL};

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

    forms::ItemList& list() const { return list_; }
    /// The row that the window has selected.
    int row() const { return static_cast<int>(SendMessageA(handle(), dialect_.selected, 0, 0)); }

    /// Gives the window the rows that it lacks. Rows are only appended, or all of them removed.
    void follow() {
        auto shown = static_cast<int>(SendMessageA(handle(), dialect_.count, 0, 0));
        if (list_.listCount() < shown) {
            SendMessageA(handle(), dialect_.clear, 0, 0);
            shown = 0;
        }
        for (; shown < list_.listCount(); ++shown)
            SendMessageA(handle(), dialect_.add, 0, reinterpret_cast<LPARAM>(list_.list(shown).c_str()));
    }

  private:
    forms::ItemList& list_;
    const Dialect& dialect_;
};

/// Rows come one by one, thousands of them at times, and are replaced before anybody has seen them. The
/// window gets them all at once when it is told or asked anything.
class ListBoxPeer : public ListPeer {
  public:
    explicit ListBoxPeer(forms::ListBox& list) : ListPeer(list, listDialect) {
        createChild("LISTBOX", {}, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_USETABSTOPS | WS_VSCROLL,
                    WS_EX_CLIENTEDGE);
        fill();
        known_ = list.listCount();
        if (handle() != nullptr && list.onFiles)
            takeFiles(handle());
    }

    void changed(forms::Property property) override {
        if (property == forms::Property::items && handle() != nullptr)
            noteRows();
        else
            ListPeer::changed(property);
    }

    void command(WORD code, WORD /*id*/) override {
        if (code == LBN_SELCHANGE)
            list().selected(row());
    }

  protected:
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        takeRows();
        switch (message) {
        case changedMessage:
            return 0;
        case WM_KEYDOWN:
            keyTaken_ = box().keyPressed(strokeOf(wParam));
            if (keyTaken_)
                return 0;
            break;
        case WM_CHAR:
            // Of a key that was taken: the list would look for a row that begins with it.
            if (keyTaken_)
                return 0;
            break;
        case WM_DROPFILES:
            drop(droppedFiles(wParam));
            return 0;
        default:
            break;
        }
        return defaultMessage(message, wParam, lParam);
    }

  private:
    void noteRows() {
        replaced_ = replaced_ || list().listCount() < known_;
        known_ = list().listCount();
        if (!std::exchange(behind_, true) && PostMessageA(handle(), changedMessage, 0, 0) == FALSE)
            takeRows();
    }

    /// They are painted once, when all are there.
    void takeRows() {
        if (!std::exchange(behind_, false))
            return;
        SendMessageA(handle(), WM_SETREDRAW, FALSE, 0);
        if (std::exchange(replaced_, false))
            SendMessageA(handle(), LB_RESETCONTENT, 0, 0);
        follow();
        SendMessageA(handle(), WM_SETREDRAW, TRUE, 0);
        InvalidateRect(handle(), nullptr, TRUE);
    }

    forms::ListBox& box() const { return static_cast<forms::ListBox&>(list()); }

    /// A dialog over ours is as good as a disabled list.
    void drop(const std::vector<std::string>& files) {
        if (IsWindowEnabled(GetAncestor(handle(), GA_ROOT)) != FALSE)
            box().filesDropped(files);
    }

    static platform::KeyStroke strokeOf(WPARAM key) {
        platform::KeyStroke stroke;
        if (key >= 'A' && key <= 'Z')
            stroke.character = static_cast<char32_t>(key - 'A' + 'a');
        else
            stroke.key = static_cast<platform::Key>(key);
        stroke.shift = GetKeyState(VK_SHIFT) < 0;
        stroke.control = GetKeyState(VK_CONTROL) < 0;
        stroke.alt = GetKeyState(VK_MENU) < 0;
        return stroke;
    }

    bool keyTaken_ = false; ///< the key that was pressed last
    bool behind_ = false;   ///< the window has not been given the rows of now
    bool replaced_ = false; ///< none of the window's rows is among them
    int known_ = 0;         ///< rows at the last change
};

/// In an open list keys and the mouse move the highlight, with notifications or without, and how it closes
/// decides in which order the rest is told: with the mouse, that it has closed comes before what was chosen;
/// with some keys nothing is. So what happens in an open list does not count. Once it has closed, and all
/// that comes with that has been heard, the window's row is the one that was taken. Two ways of closing take
/// none: Esc, and a press of the mouse or a program elsewhere; the system asks to ignore what was highlighted
/// then.
class ComboBoxPeer : public ListPeer {
  public:
    explicit ComboBoxPeer(forms::ComboBox& list) : ListPeer(list, comboDialect) {
        createChild("COMBOBOX", {}, CBS_DROPDOWNLIST | CBS_HASSTRINGS | WS_VSCROLL);
        fill();
    }

    void command(WORD code, WORD /*id*/) override {
        switch (code) {
        case CBN_DROPDOWN:
            open_ = true;
            cancelled_ = false;
            break;
        case CBN_CLOSEUP:
            // A row is chosen where the button is let go.
            if (mouseButtonDown())
                cancelled_ = true;
            if (PostMessageA(handle(), closedMessage, 0, 0) == FALSE)
                settle();
            break;
        case CBN_SELCHANGE:
            if (!open_)
                settle();
            break;
        default:
            break;
        }
    }

  protected:
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case closedMessage:
            settleIfClosed();
            return 0;
        case WM_KEYDOWN:
            if (open_ && wParam == VK_ESCAPE)
                cancelled_ = true;
            break;
        case WM_KILLFOCUS: {
            if (open_ && of(reinterpret_cast<HWND>(wParam)) == nullptr)
                cancelled_ = true;
            const LRESULT result = defaultMessage(message, wParam, lParam);
            // Who gets the focus may be a button that is being pressed by its mnemonic.
            settleIfClosed();
            return result;
        }
        default:
            break;
        }
        return defaultMessage(message, wParam, lParam);
    }

    /// The window's height is that of the field and the open list together; a short list takes less.
    RECT childPlace() const override {
        constexpr int listHeight = 160; // pixels of the design
        RECT place = WindowPeer::childPlace();
        place.bottom += list().resolution().scaled(listHeight);
        return place;
    }

  private:
    static bool mouseButtonDown() {
        return GetKeyState(VK_LBUTTON) < 0 || GetKeyState(VK_RBUTTON) < 0 || GetKeyState(VK_MBUTTON) < 0;
    }

    void settleIfClosed() {
        if (open_ && handle() != nullptr && SendMessageA(handle(), CB_GETDROPPEDSTATE, 0, 0) == FALSE)
            settle();
    }

    /// Window and model come to hold the same row: the window's, with a click if it is another one, unless it
    /// was not taken or the click has led elsewhere.
    void settle() {
        // The click may unload the form.
        const std::shared_ptr<Peer> kept = weak_from_this().lock();
        open_ = false;
        const int shown = row();
        if (!std::exchange(cancelled_, false) && shown != list().listIndex())
            list().selected(shown);
        if (handle() != nullptr && row() != list().listIndex())
            changed(forms::Property::selection);
    }

    bool open_ = false;      ///< the list is open, or has closed and that has not been settled
    bool cancelled_ = false; ///< the open list takes no row
};

} // namespace

std::unique_ptr<forms::Peer> makeListBoxPeer(forms::ListBox& list) {
    return std::make_unique<ListBoxPeer>(list);
}

std::unique_ptr<forms::Peer> makeComboBoxPeer(forms::ComboBox& list) {
    return std::make_unique<ComboBoxPeer>(list);
}

} // namespace win32
