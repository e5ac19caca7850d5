// Command button, check box and option button.
#pragma once

#include "forms/captioned.h"
#include "forms/pictured.h"

namespace forms {

/// Shows its picture, if it has one, instead of its caption.
class CommandButton : public Pictured<Captioned<Control>> {
  public:
    CommandButton() : Pictured(ControlKind::commandButton) {}

    bool isDefault = false; ///< Enter on the form presses it
    bool isCancel = false;  ///< Esc on the form presses it

    std::function<void()> onClick;
    /// Called by the peer. A disabled button ignores it.
    void click();
};

class CheckBox : public Captioned<Control> {
  public:
    CheckBox() : Captioned(ControlKind::checkBox) {}

    /// 0 or 1; error 5 for any other value. Raises onClick inside the assignment if the value really changes.
    int value() const { return value_; }
    void setValue(int value);

    std::function<void()> onClick;
    /// Called by the peer: turns the value over. A disabled box ignores it.
    void click();

  private:
    int value_ = 0;
};

/// The option buttons of one container are a group: at most one of them is on.
class OptionButton : public Captioned<Control> {
  public:
    OptionButton() : Captioned(ControlKind::optionButton) {}

    bool value() const { return value_; }
    /// Switching on switches the others of the group off, silently, and raises onClick if the value really
    /// changes. Switching off raises nothing.
    void setValue(bool value);

    std::function<void()> onClick;
    /// Called by the peer. A disabled button ignores it.
    void click();

  private:
    bool value_ = false;
};

} // namespace forms
