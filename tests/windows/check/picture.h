// What the screen shows.
#pragma once
#include <windows.h>

#include <string>

namespace picture {

// How many colours there are in a rectangle of the screen: few where nothing has been painted.
[[nodiscard]] int colours(const RECT& place);

// Leaves a PNG of a window as it is seen. What windows of other programs cover is left grey. False if it
// cannot be written.
bool save(HWND window, const std::wstring& path);

} // namespace picture
