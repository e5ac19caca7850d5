// The command buttons of a form that keys press from anywhere on it.
#pragma once

#include "forms/button.h"
#include "forms/form.h"

#include <windows.h>

#include <functional>

namespace win32 {

/// The first command button in a container, at any depth, that `fits`; null if there is none.
forms::CommandButton* findButton(const forms::Container& container,
                                 const std::function<bool(const forms::CommandButton&)>& fits);

/// The button that Enter presses while no command button has the focus; null if there is none.
forms::CommandButton* defaultButton(const forms::Form& form);

} // namespace win32
