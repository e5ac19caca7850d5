#include "forms/button.h"

#include "forms/event.h"
#include "runtime/runtimeError.h"

namespace forms {

void CommandButton::click() {
    if (acceptsInput())
        raise(onClick);
}

void CheckBox::setValue(int value) {
    if (value != 0 && value != 1)
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    if (value == value_)
        return;
    value_ = value;
    tellPeer(Property::value);
    raise(onClick);
}

void CheckBox::click() {
    if (acceptsInput())
        setValue(1 - value_);
}

void OptionButton::setValue(bool value) {
    if (value == value_)
        return;
    value_ = value;
    tellPeer(Property::value);
    if (!value)
        return;
    if (container() != nullptr)
        for (Control* other : container()->controls())
            if (other != this && other->kind() == ControlKind::optionButton)
                static_cast<OptionButton*>(other)->setValue(false);
    raise(onClick);
}

void OptionButton::click() {
    if (acceptsInput())
        setValue(true);
}

} // namespace forms
