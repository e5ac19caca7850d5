// What the language's runtime gave of the world outside: message and input box, directory lookup, files,
// program start, activation by title, the key sender, pending messages, the end of the program.
//
// Texts are in the ANSI code page. A failure that is named here is thrown as runtime::RuntimeError.
#pragma once

#include "forms/picture.h"
#include "platform/types.h"
#include "runtime/keyText.h"

#include <span>
#include <string>
#include <string_view>

namespace platform {

/// Style of a message box: OK and the icon of what has gone wrong.
inline constexpr int criticalStyle = 16;

/// Message box owned by the program's hidden window; the style is the platform's number (0 OK, 4 Yes and No,
/// criticalStyle). Gives the platform's answer: 1 OK, 6 Yes, 7 No.
int msgBox(std::string_view text, int style, std::string_view title);

/// Asks for one line of text. Empty when the user cancels.
std::string inputBox(std::string_view prompt, std::string_view title);

/// The bare name, in its stored case, of the first normal file that `path` (with `*` and `?`) matches; empty
/// if there is none. Directories, hidden and system files do not match, an empty path matches nothing.
std::string dir(std::string_view path);

/// Deletes a file. Errors 53, 70, 75.
void kill(std::string_view path);

/// The first line of a text file, without its line end; empty if the file is. Of a line beyond a megabyte
/// only its beginning. Errors 53, 55, 70, 75, 76.
std::string readFirstLine(std::string_view path);

/// Starts one command line and returns at once; window style 1 is normal with focus. Error 53 if nothing
/// starts.
void shell(std::string_view commandLine, int windowStyle);

/// Activates the first window whose title is `title`, else the first whose title begins with it, both without
/// regard to case. Error 5 if there is none.
void appActivate(std::string_view title);

/// Types key strokes into the window that has the keyboard focus. With `wait` it returns only after the
/// window in front has processed them, or after two seconds.
void sendKeys(std::span<const runtime::KeyStroke> strokes, bool wait);

/// Lets pending messages run once.
void doEvents();

/// Text of the ANSI code page as UTF-16, and back; what the code page lacks becomes a question mark.
std::u16string toUtf16(std::string_view text);
std::string toAnsi(std::u16string_view text);

/// Folder of the running program, without a trailing backslash unless it is a drive root.
const std::string& programFolder();

/// The current folder, for a file dialog's start.
std::string currentDirectory();

/// Claims the place of the one instance of the logged-on user. True if another instance holds it already.
bool previousInstance();

/// Ends the program at once; no form is asked or unloaded.
[[noreturn]] void endProgram();

void beep();

/// A picture that the program carries with it; the empty picture if there is none with this name.
forms::Picture loadPicture(std::string_view name);

/// Twips to a pixel of the screen, horizontally: 15 on the usual display.
double twipsPerPixelX();

} // namespace platform
