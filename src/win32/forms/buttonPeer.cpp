// Command button, check box and option button. The window never changes its own mark: it follows the model.
#include "win32/forms/bitmaps.h"
#include "win32/forms/dialogKeys.h"
#include "win32/forms/formButtons.h"
#include "win32/forms/peers.h"
#include "win32/forms/windowPeer.h"

#include "forms/button.h"

#include <algorithm>
#include <vector>

namespace win32 {

namespace {

/// What the three kinds have in common: a caption and a click.
template <typename Button>
class ButtonPeer : public WindowPeer {
  public:
    void changed(forms::Property property) override {
        if (property == forms::Property::text)
            setWindowText(button_.caption());
        else
            WindowPeer::changed(property);
    }

    void command(WORD code, WORD /*id*/) override {
        if (code == BN_CLICKED)
            button_.click();
    }

  protected:
    ButtonPeer(Button& button, DWORD style) : WindowPeer(button), button_(button) {
        createChild("BUTTON", button.caption(), style);
    }

    Button& button() const { return button_; }

    void mark(bool on) {
        if (handle() != nullptr)
            SendMessageA(handle(), BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
    }

  private:
    Button& button_;
};

/// A caption that is too wide goes on in a second line if there is room for one; else both would be cut.
DWORD captionStyle(const forms::CommandButton& button) {
    constexpr int twoLines = 30; // pixels of the design, with the button's frame
    return forms::Resolution().toPixels(button.height()) < twoLines ? 0 : BS_MULTILINE;
}

class CommandButtonPeer : public ButtonPeer<forms::CommandButton> {
  public:
    explicit CommandButtonPeer(forms::CommandButton& button)
        : ButtonPeer(button, (button.isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) | captionStyle(button)) {
        if (!button.picture().empty())
            showPicture();
    }

    ~CommandButtonPeer() override {
        if (icon_ != nullptr)
            DestroyIcon(icon_);
    }

    void changed(forms::Property property) override {
        if (property != forms::Property::picture)
            ButtonPeer::changed(property);
        if (handle() != nullptr &&
            (property == forms::Property::picture || property == forms::Property::resolution)) {
            showPicture();
            InvalidateRect(handle(), nullptr, TRUE);
        }
    }

  protected:
    /// Enter presses the command button that has the focus, else the form's default one, and that one alone
    /// looks like it. A form that is left for another window keeps this as it keeps its focus.
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_SETFOCUS) {
            if (!button().isDefault)
                lookOfDefault(false);
            look(true);
        } else if (message == WM_KILLFOCUS) {
            const auto next = reinterpret_cast<HWND>(wParam);
            if (dialogOf(next) == dialogOf(handle()))
                passOn(next);
        }
        return defaultMessage(message, wParam, lParam);
    }

  private:
    /// The focus goes to another control of the form.
    void passOn(HWND next) {
        const bool toButton = dynamic_cast<CommandButtonPeer*>(of(next)) != nullptr;
        look(!toButton && button().isDefault);
        if (!toButton && !button().isDefault)
            lookOfDefault(true);
    }

    void lookOfDefault(bool pressedByEnter) {
        forms::CommandButton* const wanted = defaultButton(*button().form());
        auto* const peer = wanted == nullptr ? nullptr : dynamic_cast<CommandButtonPeer*>(wanted->peer());
        if (peer != nullptr && peer->handle() != nullptr)
            peer->look(pressedByEnter);
    }

    /// The message takes the place of all the button's styles.
    void look(bool pressedByEnter) {
        constexpr DWORD buttonStyles = 0xFFFF;
        const DWORD kind = pressedByEnter ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
        const auto style = static_cast<DWORD>(GetWindowLongA(handle(), GWL_STYLE)) & buttonStyles;
        if ((style & BS_TYPEMASK) != kind)
            SendMessageA(handle(), BM_SETSTYLE, (style & ~DWORD{BS_TYPEMASK}) | kind, TRUE);
    }

    void showPicture() {
        if (handle() == nullptr)
            return;
        const forms::Picture picture = button().shown();
        const HICON made = picture.empty() ? nullptr : iconOf(picture);
        const LONG style = GetWindowLongA(handle(), GWL_STYLE) & ~BS_ICON;
        SetWindowLongA(handle(), GWL_STYLE, made == nullptr ? style : style | BS_ICON);
        SendMessageA(handle(), BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(made));
        if (icon_ != nullptr)
            DestroyIcon(icon_);
        icon_ = made;
    }

    HICON icon_ = nullptr;
};

class CheckBoxPeer : public ButtonPeer<forms::CheckBox> {
  public:
    explicit CheckBoxPeer(forms::CheckBox& box) : ButtonPeer(box, BS_CHECKBOX) {
        if (box.value() != 0)
            mark(true);
    }

    void changed(forms::Property property) override {
        if (property == forms::Property::value)
            mark(button().value() != 0);
        else
            ButtonPeer::changed(property);
    }
};

/// The option buttons of one container, in their order.
std::vector<forms::OptionButton*> groupOf(const forms::OptionButton& button) {
    std::vector<forms::OptionButton*> group;
    for (forms::Control* control : button.container()->controls())
        if (control->kind() == forms::ControlKind::optionButton)
            group.push_back(static_cast<forms::OptionButton*>(control));
    return group;
}

void setTabStop(HWND window, bool stops) {
    const LONG style = GetWindowLongA(window, GWL_STYLE);
    const LONG wanted = stops ? style | WS_TABSTOP : style & ~WS_TABSTOP;
    if (wanted != style)
        SetWindowLongA(window, GWL_STYLE, wanted);
}

/// The Tab key stops at a group once: at the button that is on, else at the first one.
void placeTabStop(const std::vector<forms::OptionButton*>& group) {
    const auto on =
        std::find_if(group.begin(), group.end(), [](const auto* button) { return button->value(); });
    const forms::OptionButton* const stop = on == group.end() ? group.front() : *on;
    for (const forms::OptionButton* button : group) {
        const auto* peer = dynamic_cast<const WindowPeer*>(button->peer());
        if (peer == nullptr || peer->handle() == nullptr)
            continue;
        setTabStop(peer->handle(), button == stop && button->tabStop);
    }
}

class OptionButtonPeer : public ButtonPeer<forms::OptionButton> {
  public:
    explicit OptionButtonPeer(forms::OptionButton& button) : ButtonPeer(button, BS_RADIOBUTTON) {
        if (handle() == nullptr)
            return;
        if (button.value())
            mark(true);
        // This window is not known to the control yet, the others are.
        setTabStop(handle(), button.tabStop && (button.value() || groupOf(button).front() == &button));
        if (button.value())
            placeTabStop(groupOf(button));
    }

    void changed(forms::Property property) override {
        if (property != forms::Property::value) {
            ButtonPeer::changed(property);
            return;
        }
        mark(button().value());
        placeTabStop(groupOf(button()));
    }

    void command(WORD code, WORD id) override {
        // The system's button reports a click when it only gets the focus.
        if (!gettingFocus_)
            ButtonPeer::command(code, id);
    }

  protected:
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case WM_SETFOCUS: {
            gettingFocus_ = true;
            const LRESULT result = defaultMessage(message, wParam, lParam);
            gettingFocus_ = false;
            return result;
        }
        case WM_GETDLGCODE:
            return defaultMessage(message, wParam, lParam) | DLGC_WANTARROWS;
        case WM_KEYDOWN:
            if (wParam == VK_UP || wParam == VK_LEFT || wParam == VK_DOWN || wParam == VK_RIGHT) {
                selectNeighbour(wParam == VK_UP || wParam == VK_LEFT);
                return 0;
            }
            break;
        default:
            break;
        }
        return defaultMessage(message, wParam, lParam);
    }

  private:
    void selectNeighbour(bool back) {
        std::vector<forms::OptionButton*> group = groupOf(button());
        if (back)
            std::reverse(group.begin(), group.end());
        // This button comes last, its neighbours in their order before it.
        std::rotate(group.begin(), std::next(std::find(group.begin(), group.end(), &button())), group.end());
        for (forms::OptionButton* other : group)
            if (other != &button() && other->visible() && other->enabled()) {
                other->setFocus();
                other->click();
                return;
            }
    }

    bool gettingFocus_ = false;
};

} // namespace

std::unique_ptr<forms::Peer> makeCommandButtonPeer(forms::CommandButton& button) {
    return std::make_unique<CommandButtonPeer>(button);
}

std::unique_ptr<forms::Peer> makeCheckBoxPeer(forms::CheckBox& box) {
    return std::make_unique<CheckBoxPeer>(box);
}

std::unique_ptr<forms::Peer> makeOptionButtonPeer(forms::OptionButton& button) {
    return std::make_unique<OptionButtonPeer>(button);
}

} // namespace win32
