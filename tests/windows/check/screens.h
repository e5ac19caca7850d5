// The screens of the desktop, in their own pixels.
#pragma once
#include <windows.h>

#include <vector>

namespace screens {

struct Screen {
    RECT whole;
    RECT work; // without the taskbar
    int dpi;
    bool primary;
};

[[nodiscard]] std::vector<Screen> all();
[[nodiscard]] Screen primary();

// The primary screen's work area in pixels of 96 dpi, as a program sees it that takes every screen for one.
[[nodiscard]] RECT plainWorkArea();

} // namespace screens
