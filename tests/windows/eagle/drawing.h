// What an editor's canvas shows: a grid and a small drawing that is typical of the kind.
#pragma once
#include "eagle/kinds.h"

#include <windows.h>

namespace drawing {

void paint(HDC dc, const RECT& area, kinds::Kind kind);

} // namespace drawing
