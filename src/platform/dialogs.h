// What the program tells and asks the user: message box, input box, the sound.
//
// Texts are in the ANSI code page.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Style of a message box: OK and the icon of what has gone wrong.
inline constexpr int criticalStyle = 16;

/// Message box, in front of the innermost modal form if there is one; the style is the platform's number (0
/// OK, 4 Yes and No, criticalStyle). Gives the platform's answer: 1 OK, 6 Yes, 7 No.
int msgBox(std::string_view text, int style, std::string_view title);

/// Asks for one line of text. Empty when the user cancels.
std::string inputBox(std::string_view prompt, std::string_view title);

void beep();

} // namespace platform
