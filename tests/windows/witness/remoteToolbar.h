// The buttons of a toolbar control that belongs to another process of either bitness.
#pragma once
#include <windows.h>

#include <vector>

namespace remoteToolbar {

struct Button {
    RECT place; // in screen pixels
    BYTE state; // TBSTATE_...
    BYTE style; // BTNS_...
};

// Empty if the toolbar does not answer.
std::vector<Button> buttons(HWND toolbar);

} // namespace remoteToolbar
