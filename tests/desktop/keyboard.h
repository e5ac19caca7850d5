// The user's keys in a text box: natively it has no window that would take them.
#pragma once

#include <string_view>

namespace forms {
class TextBox;
}

namespace desktop {

/// What a user does who types a text of the ANSI code page, the backspace among its characters. For each of
/// them the key goes down, the press, the edit at the selection, the release. A disabled box hears nothing.
void typeInto(forms::TextBox& box, std::string_view text);

} // namespace desktop
