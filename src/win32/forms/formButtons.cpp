#include "win32/forms/formButtons.h"

namespace win32 {

forms::CommandButton* findButton(const forms::Container& container,
                                 const std::function<bool(const forms::CommandButton&)>& fits) {
    for (forms::Control* child : container.controls()) {
        if (child->kind() == forms::ControlKind::commandButton) {
            auto* button = static_cast<forms::CommandButton*>(child);
            if (fits(*button))
                return button;
        } else if (auto* inner = dynamic_cast<forms::Container*>(child)) {
            if (forms::CommandButton* button = findButton(*inner, fits))
                return button;
        }
    }
    return nullptr;
}

forms::CommandButton* defaultButton(const forms::Form& form) {
    return findButton(form, [](const forms::CommandButton& button) { return button.isDefault; });
}

} // namespace win32
