// Paths as the system's wide calls take them, and as texts of the code page.
//
// The program's folder may have letters that the code page lacks. Its text is then its short name, and where
// the volume gives none a text that stands for it: the logic puts it before a file's name like any folder,
// and whatever takes a path here turns it back.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace win32 {

/// Characters that a path can have at most, with the NUL at its end.
inline constexpr DWORD longestPath = 32768;

/// What stands for the program's folder in the button lists too, so that a path which is chosen in that
/// folder is found wherever the folder goes. No path of the system begins so.
inline constexpr std::string_view folderStandIn = "{kestrelpath}";

/// Full path of the program's file.
const std::wstring& ownPath();

/// Whether the program's folder has a stand-in and a text holds it.
bool holdsStandIn(std::string_view text);

/// Text of the code page for the wide calls: with the program's folder wherever its stand-in is.
std::wstring widePath(std::string_view text);

/// A path as text: as it is, with the stand-in, by its short name; else with question marks.
std::string pathText(const std::wstring& path);

/// The program's folder as text, without a trailing backslash unless it is a drive root.
const std::string& programFolderText();

/// The short name of a path, all of its folders among it; the path itself where the volume has none, empty
/// where the path leads to nothing. The contract tests have another one.
std::wstring shortName(const std::wstring& path);

} // namespace win32
