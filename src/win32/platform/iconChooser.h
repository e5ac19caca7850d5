// The shell's icon chooser and its buffer of UTF-16 characters.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace win32 {

/// `file` has room for `size` characters and is ended by NUL, unless the name fills it.
using IconChooser = int(WINAPI*)(HWND owner, wchar_t* file, UINT size, int* index);

/// What platform::PickIconDlg does, with this chooser. The keyboard comes back to where it was.
int callIconChooser(IconChooser choose, HWND owner, std::string& file, std::int32_t& index);

} // namespace win32
