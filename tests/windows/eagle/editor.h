// Editor windows: real top-level windows with a menu bar, a tool row, a parameter row, the command field that
// takes what is typed, a tool palette, a canvas and a status line. The top right is left free.
#pragma once
#include "eagle/kinds.h"

#include <windows.h>

#include <string>
#include <vector>

namespace editor {

struct Editor {
    int id = 0; // 1, 2, 3 ... in the order of opening
    kinds::Kind kind = kinds::Kind::board;
    bool german = false;
    HWND frame = nullptr;
    HWND command = nullptr;
    HWND layer = nullptr;
    HWND coordinates = nullptr;
    HWND canvas = nullptr;
    HWND status = nullptr;
};

void registerClasses();

// Opens a window and shows it; the place follows from the id, cascading.
Editor& open(kinds::Kind kind, const std::wstring& title, bool german);

// nullptr if there is none (any more).
Editor* find(int id);
std::vector<int> openIds();

// Runs a command text in an editor, as Enter in its command field does.
void execute(Editor& editor, const std::wstring& command);

} // namespace editor
