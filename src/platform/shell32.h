// Shell operations of the platform: icons of files, the icon chooser, the tray, opening
// files. None throws. A file on a host that does not answer counts as missing, as files.h tells.
#pragma once

#include "platform/types.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace platform {

/// Width and height of a small icon at 96 dpi.
inline constexpr int smallIconSide = 16;
/// The same of a large one, at any resolution.
inline constexpr int largeIconSide = 32;

/// Extracts the icon with number `index` (from 0) of an executable, a library or an .ico file, at 32 and at
/// `smallSide` pixels. Gives the number of icons extracted, 0 on failure. Both handles are the caller's, to
/// be given back with DestroyIcon. A large icon that is not given back lasts until the next extraction; a
/// small one stays for good.
std::uint32_t ExtractIconExA(const char* file, std::int32_t index, HICON& largeIcon, HICON& smallIcon,
                             int smallSide = smallIconSide);

/// Number of icons in an executable, a library or an .ico file; 0 if there is none or the file cannot be
/// read.
int iconCount(const char* file);

/// Characters of a file's name in the icon chooser, its NUL among them.
inline constexpr std::size_t iconPathSize = 260;

/// What the icon chooser gives when the user has confirmed, and where the shell has none.
inline constexpr int iconPicked = 1;
inline constexpr int noIconChooser = -1;

/// The system's icon chooser, beginning with icon `index` (from 0) of `file`, whose name is cut to what goes
/// into iconPathSize; without a file if that is on a host that does not answer. If it gives iconPicked, both
/// are replaced by the chosen ones; what the code page lacks of the name becomes question marks. With any
/// other result both are as they were.
int PickIconDlg(HWND owner, std::string& file, std::int32_t& index);

/// The tray's record, first version, with the platform's field names.
struct NOTIFYICONDATA {
    std::uint32_t cbSize = 88; ///< as it stands in the 32-bit program
    HWND hWnd = HWND::none;
    std::uint32_t uID = 0;
    std::uint32_t uFlags = 0;
    std::uint32_t uCallbackMessage = 0;
    HICON hIcon = HICON::none;
    char szTip[64] = {};
};

/// `message` 0 adds the icon, 2 deletes it. False if the shell refuses.
bool Shell_NotifyIconA(std::uint32_t message, const NOTIFYICONDATA& record);

/// A command that says how what is opened is shown.
inline constexpr int showNormally = 1;

/// Opens or starts `file` with the verb given, shown as `command` says. A value above 32 on success;
/// failure shows nothing. Waits three seconds at most, and not at all for a server on which another file is
/// still being opened; then it counts as failed, and may still come. A
/// file beyond 1500 characters fails, and so does one without a name.
std::intptr_t ShellExecuteA(HWND owner, const char* verb, const char* file, const char* parameters,
                            const char* folder, int command);

/// The program's own icon at the tray's size. It stays the platform's.
HICON programIcon();

} // namespace platform
