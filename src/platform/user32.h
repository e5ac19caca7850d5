// Window operations of the platform, under the platform's own names.
//
// Defined once for the program (src/win32/platform) and once for the tests (tests/desktop): the link line of
// a target says what world it runs in. None of them throws; failure is the platform's own result.
// None blocks on a window of another program that hangs.
#pragma once

#include "platform/types.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace platform {

/// Called for one top-level window; returns 0 to stop the enumeration, anything else to go on.
using EnumWindowsCallback = int (*)(HWND window, std::intptr_t extra);

/// Calls back for each top-level window, hidden ones included, from the top of the window order downwards.
/// The picture that the system shows in place of a window that hangs (class Ghost) is left out: it bears that
/// window's title and would be taken for it.
bool EnumWindows(EnumWindowsCallback callback, std::intptr_t extra);

/// Copies the title, cut to `size - 1` characters and terminated by NUL, and returns the number of
/// characters copied; 0 for an empty title or a dead window.
int GetWindowTextA(HWND window, char* text, int size);
int GetWindowTextLengthA(HWND window);
bool IsWindow(HWND window);
/// Whether a window is an icon on the task bar.
bool IsIconic(HWND window);

/// Outer rectangle in screen pixels. False and an untouched rectangle for a dead window.
bool GetWindowRect(HWND window, RECT& rect);
/// Client rectangle in pixels; left and top are 0.
bool GetClientRect(HWND window, RECT& rect);

/// Makes a window of ours the child of `parent`, also of a window of another process, or a top-level
/// window again if `parent` is none. Gives the former parent; none if the system refuses or `parent` has
/// died: the window stands where it stood and is not seen, whatever is done to it, until it has been put
/// somewhere.
HWND SetParent(HWND child, HWND parent);

/// Pixels: client coordinates of the parent for a child, screen coordinates otherwise.
bool MoveWindow(HWND window, int x, int y, int width, int height, bool repaint);

/// `insertAfter`: 0 top of the order, -1 always on top. Flags: 1 keep size, 2 keep position.
bool SetWindowPos(HWND window, std::intptr_t insertAfter, int x, int y, int width, int height,
                  std::uint32_t flags);
bool BringWindowToTop(HWND window);

/// The command that brings a window back from its icon.
inline constexpr int restoreWindow = 9;
bool ShowWindow(HWND window, int command);
std::intptr_t SendMessageA(HWND window, std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam);

/// `rect` in client pixels of `window`; flags as the platform's (0x185: invalidate, erase, all children,
/// now).
bool RedrawWindow(HWND window, const RECT& rect, std::uint32_t flags);

/// The flags that draw an icon as it is, with its mask.
inline constexpr std::uint32_t drawNormally = 3;
/// Draws an icon; size 0 means the icon's own size.
bool DrawIconEx(HDC dc, int x, int y, HICON icon, int width, int height, std::uint32_t step,
                std::uint32_t flags);
bool DestroyIcon(HICON icon);

/// Turns text of the ANSI code page to lower case in place, umlauts included.
void CharLowerBuffA(std::span<char> text);

} // namespace platform
