// A text box: the system's edit field of one line, in step with the model both ways.
#include "win32/common/windowChanges.h"
#include "win32/forms/dialogKeys.h"
#include "win32/forms/peers.h"
#include "win32/forms/windowPeer.h"

#include "forms/event.h"
#include "forms/textBox.h"

namespace win32 {

namespace {

constexpr int selectAllKey = 1; // what Ctrl+A types

/// The code page's character that a character message brings. A window of the newer control library gets
/// UTF-16, any other the code page itself.
int toAnsi(HWND window, WPARAM character) {
    if (IsWindowUnicode(window) == FALSE)
        return static_cast<int>(character & 0xFFU);
    const auto wide = static_cast<wchar_t>(character);
    char narrow = 0;
    WideCharToMultiByte(CP_ACP, 0, &wide, 1, &narrow, 1, nullptr, nullptr);
    return static_cast<unsigned char>(narrow);
}

WPARAM fromAnsi(HWND window, int character) {
    const auto narrow = static_cast<char>(character);
    if (IsWindowUnicode(window) == FALSE)
        return static_cast<unsigned char>(narrow);
    wchar_t wide = 0;
    MultiByteToWideChar(CP_ACP, 0, &narrow, 1, &wide, 1);
    return wide;
}

class TextBoxPeer : public WindowPeer {
  public:
    explicit TextBoxPeer(forms::TextBox& box) : WindowPeer(box), box_(box) {
        createChild("EDIT", box.text(), ES_AUTOHSCROLL, WS_EX_CLIENTEDGE);
        if (handle() == nullptr)
            return;
        SendMessageA(handle(), EM_LIMITTEXT, static_cast<WPARAM>(box.maxLength), 0);
        showSelection();
    }

    void changed(forms::Property property) override {
        if (handle() == nullptr)
            return;
        switch (property) {
        case forms::Property::text:
            following_ = true;
            setWindowText(box_.text());
            following_ = false;
            showSelection();
            break;
        case forms::Property::selection:
            selectionAssigned_ = true;
            showSelection();
            break;
        default:
            WindowPeer::changed(property);
            break;
        }
    }

    void command(WORD code, WORD /*id*/) override {
        if (code != EN_CHANGE || following_)
            return;
        const Selection now = selection();
        box_.edited(windowText(), now.start, now.length);
    }

  protected:
    bool mouseEventsFirst() const override { return false; }

    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST)
            return mouse(message, wParam, lParam);
        switch (message) {
        case WM_GETDLGCODE:
            return defaultMessage(message, wParam, lParam) | (isTab(lParam) ? DLGC_WANTTAB : 0);
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (wParam == VK_TAB) {
                tab();
                return 0;
            }
            forms::raise(box_.onKeyDown, static_cast<int>(wParam), shiftState());
            break;
        case WM_CHAR:
            return typed(wParam, lParam);
        default:
            break;
        }
        const LRESULT result = defaultMessage(message, wParam, lParam);
        if (message == WM_KEYDOWN || message == WM_KILLFOCUS || message == EM_SETSEL)
            readSelection();
        // The release of the Tab key belongs to the box that it has left, and has been reported there.
        if ((message == WM_KEYUP || message == WM_SYSKEYUP) && wParam != VK_TAB)
            forms::raise(box_.onKeyUp, static_cast<int>(wParam), shiftState());
        return result;
    }

  private:
    struct Selection {
        int start;
        int length;
    };

    /// The field's own handling of a button moves the caret: an event that selects is to have the last word.
    LRESULT mouse(UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_RBUTTONDOWN)
            focusWindow(handle());
        const LRESULT result = defaultMessage(message, wParam, lParam);
        readSelection();
        selectionAssigned_ = false;
        reportMouse(message, wParam, lParam);
        // As long as the field holds the mouse, its smallest movement would select anew.
        if (message == WM_LBUTTONDOWN && selectionAssigned_ && handle() != nullptr &&
            GetCapture() == handle())
            ReleaseCapture();
        return result;
    }

    static bool isTab(LPARAM asked) {
        const auto* message = reinterpret_cast<const MSG*>(asked);
        return message != nullptr && message->message == WM_KEYDOWN && message->wParam == VK_TAB;
    }

    /// The key goes up here before the focus moves on, although the user releases it in the next control.
    void tab() {
        const int shift = shiftState();
        forms::raise(box_.onKeyDown, VK_TAB, shift);
        forms::raise(box_.onKeyUp, VK_TAB, shift);
        if (handle() != nullptr)
            moveFocus(handle(), (shift & 1) != 0);
    }

    LRESULT typed(WPARAM character, LPARAM lParam) {
        if (character == VK_TAB)
            return 0;
        const int typed = toAnsi(handle(), character);
        const int taken = box_.keyPressed(typed);
        // A field of one line would only beep at Enter and Esc.
        if (handle() == nullptr || taken == 0 || taken == VK_RETURN || taken == VK_ESCAPE)
            return 0;
        if (taken == selectAllKey) {
            SendMessageA(handle(), EM_SETSEL, 0, -1);
            return 0;
        }
        const LRESULT result =
            defaultMessage(WM_CHAR, taken == typed ? character : fromAnsi(handle(), taken), lParam);
        readSelection();
        return result;
    }

    Selection selection() const {
        DWORD begin = 0;
        DWORD end = 0;
        SendMessageA(handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
        return {static_cast<int>(begin), static_cast<int>(end - begin)};
    }

    void readSelection() {
        if (handle() == nullptr)
            return;
        const Selection now = selection();
        box_.selected(now.start, now.length);
    }

    void showSelection() {
        SendMessageA(handle(), EM_SETSEL, static_cast<WPARAM>(box_.selStart()),
                     box_.selStart() + box_.selLength());
        SendMessageA(handle(), EM_SCROLLCARET, 0, 0);
    }

    forms::TextBox& box_;
    bool following_ = false;         ///< the window is being brought in step with the model
    bool selectionAssigned_ = false; ///< the mouse event that is being raised has assigned a selection
};

} // namespace

std::unique_ptr<forms::Peer> makeTextBoxPeer(forms::TextBox& box) {
    return std::make_unique<TextBoxPeer>(box);
}

} // namespace win32
