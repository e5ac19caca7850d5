// The one global instance that some forms have: made at its first use, it lives until the program ends.
#pragma once

#include <memory>

namespace forms {

/// Where the instance is kept; null before its first use. Emptying it makes the next use a first one again.
template <typename AForm>
std::unique_ptr<AForm>& defaultSlot() {
    static std::unique_ptr<AForm> slot;
    return slot;
}

template <typename AForm>
AForm& defaultInstance() {
    std::unique_ptr<AForm>& slot = defaultSlot<AForm>();
    if (!slot)
        slot = std::make_unique<AForm>();
    return *slot;
}

} // namespace forms
