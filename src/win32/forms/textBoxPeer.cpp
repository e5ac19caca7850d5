// A text box: the system's edit field of one line, in step with the model both ways.
#include "win32/common/windowChanges.h"
#include "win32/forms/dialogKeys.h"
#include "win32/forms/peers.h"
#include "win32/forms/windowPeer.h"

#include "forms/event.h"
#include "forms/textBox.h"
#include "platform/codePage.h"
#include "runtime/characters.h"

#include <string>
#include <utility>

namespace win32 {

namespace {

constexpr int selectAllKey = 1; // what Ctrl+A types

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
            showText();
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
        const std::string text = windowText();
        const Selection now = selection();
        box_.edited(text, now.start, now.length);
        showTaken(text);
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
        case WM_IME_CHAR: // an input method's: handled by the field it would come again as the other
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

    /// A unit of UTF-16, which the field gets as the code page's character that the model is to hold.
    LRESULT typed(WPARAM typedUnit, LPARAM lParam) {
        if (typedUnit == VK_TAB)
            return 0;
        const auto unit = static_cast<char16_t>(typedUnit);
        if (IS_HIGH_SURROGATE(unit)) {
            firstHalf_ = unit;
            return 0;
        }
        std::u16string units(IS_LOW_SURROGATE(unit) && firstHalf_ != 0 ? 1 : 0, firstHalf_);
        units += unit;
        firstHalf_ = 0;
        const std::string text = platform::toAnsi(units);
        const std::string_view character(text.data(), runtime::characterSize(text));
        const int taken = box_.keyPressed(runtime::characterCode(character));
        // A field of one line would only beep at Enter and Esc.
        if (handle() == nullptr || taken == 0 || taken == VK_RETURN || taken == VK_ESCAPE)
            return 0;
        if (taken == selectAllKey) {
            SendMessageW(handle(), EM_SETSEL, 0, -1);
            return 0;
        }
        const LRESULT result = insert(platform::toUtf16(runtime::characterOfCode(taken)), lParam);
        readSelection();
        return result;
    }

    /// One character: both halves of one or none.
    LRESULT insert(const std::u16string& units, LPARAM lParam) {
        const auto room = static_cast<std::size_t>(box_.maxLength) + selectedUnits();
        if (units.size() > 1 && box_.maxLength > 0 && wideText().size() + units.size() > room)
            return 0;
        LRESULT result = 0;
        for (std::size_t at = 0; at < units.size(); ++at) {
            following_ = at + 1 < units.size();
            result = defaultMessage(WM_CHAR, units[at], lParam);
        }
        following_ = false;
        return result;
    }

    void showText() {
        following_ = true;
        const bool assigned = setWindowText(box_.text());
        following_ = false;
        // The field begins a new text with the caret at its start.
        if (!assigned || box_.selStart() != 0 || box_.selLength() != 0)
            showSelection();
    }

    /// What has been pasted may hold what the code page lacks: the field shows what the model has taken.
    void showTaken(const std::string& text) {
        if (handle() == nullptr || box_.text() != text || wideText() == platform::toUtf16(text))
            return;
        following_ = true;
        SetWindowTextA(handle(), text.c_str());
        following_ = false;
        showSelection();
    }

    std::pair<DWORD, DWORD> unitSelection() const {
        DWORD begin = 0;
        DWORD end = 0;
        SendMessageW(handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
        return {begin, end};
    }

    std::size_t selectedUnits() const {
        const auto [begin, end] = unitSelection();
        return end - begin;
    }

    /// In characters, where the field counts units of UTF-16.
    Selection selection() const {
        const auto [begin, end] = unitSelection();
        const std::u16string text = wideText();
        const auto characters = [&text](DWORD units) {
            return static_cast<int>(runtime::characterCount(platform::toAnsi(text.substr(0, units))));
        };
        const int start = characters(begin);
        return {start, characters(end) - start};
    }

    void readSelection() {
        if (handle() == nullptr)
            return;
        const Selection now = selection();
        box_.selected(now.start, now.length);
    }

    void showSelection() {
        const auto units = [this](int characters) {
            const std::string& text = box_.text();
            const std::size_t size = runtime::sizeOfCharacters(text, static_cast<std::size_t>(characters));
            return platform::toUtf16({text.data(), size}).size();
        };
        SendMessageW(handle(), EM_SETSEL, units(box_.selStart()),
                     static_cast<LPARAM>(units(box_.selStart() + box_.selLength())));
        SendMessageW(handle(), EM_SCROLLCARET, 0, 0);
    }

    forms::TextBox& box_;
    bool following_ = false;         ///< the window is being brought in step with the model
    bool selectionAssigned_ = false; ///< the mouse event that is being raised has assigned a selection
    char16_t firstHalf_ = 0;         ///< of a character of two units that is being typed; 0 if none is
};

} // namespace

std::unique_ptr<forms::Peer> makeTextBoxPeer(forms::TextBox& box) {
    return std::make_unique<TextBoxPeer>(box);
}

} // namespace win32
