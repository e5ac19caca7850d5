// The clipboard of the platform.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// How long a clipboard that another program holds is waited for, in milliseconds. It has to be
/// longer than those hold it that look at whatever is copied (a history of the clipboard, a remote screen),
/// and short for a user who has clicked a button: nothing of ours is painted meanwhile.
inline constexpr int clipboardPatience = 500;

/// Empties it. Error 521 if another program goes on holding it, or if nothing could be put there afterwards
/// since the system makes no more windows: then it keeps what it has.
void clearClipboard();

/// Puts text of the ANSI code page there as plain text, beside what is there in other formats. Plain text
/// ends at its first NUL, and so does what others get of it. Error 521 as of clearClipboard.
void setClipboardText(std::string_view text);

/// Its plain text, in the ANSI code page, as far as its first NUL; what that lacks becomes question marks.
/// Empty if it holds no text. Error 521 if another program goes on holding it.
std::string clipboardText();

} // namespace platform
