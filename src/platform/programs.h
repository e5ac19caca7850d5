// Starting other programs and calling them up, and this one's own place among them.
//
// Texts are in the ANSI code page. A failure that is named here is thrown as runtime::RuntimeError.
#pragma once

#include <string_view>

namespace platform {

/// A window style.
inline constexpr int normalWithFocus = 1;

/// Starts one command line, with the window style given, and returns at once. Error 53 if nothing starts; a
/// program on a host that does not answer counts as missing, as files.h tells, and may still start. For one
/// that needs more rights than the program has the system asks the user; that is a start, even if the user
/// refuses.
void shell(std::string_view commandLine, int windowStyle);

/// Activates the first window whose title is `title`, else the first whose title begins with it, both without
/// regard to case. Error 5 if there is none.
void appActivate(std::string_view title);

/// Claims the place of the one instance of the logged-on user. True if another instance holds it already.
bool previousInstance();

/// Ends the program at once; no form is asked or unloaded. A window of another program that a dialog of ours
/// has disabled is enabled again.
[[noreturn]] void endProgram();

} // namespace platform
