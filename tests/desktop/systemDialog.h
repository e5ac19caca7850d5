// What a dialog of the system does to the window that it stands on.
#pragma once

#include "platform/types.h"

#include <functional>

namespace desktop {

/// A dialog is up over this owner, or over none, for as long as `during` runs, which may be empty: the
/// owner's top window is disabled meanwhile. One that is found disabled stays so, and the system brings
/// another program's window in front afterwards. A dialog that the program ends under leaves all as it is.
void whileUp(platform::HWND owner, const std::function<void()>& during);

} // namespace desktop
