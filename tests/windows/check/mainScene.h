// The main job, played with the real program: a toolbar in each of the stand-in EAGLE's three kinds of
// windows, clicks that type commands, the setup dialog, the end. tests/windows/scenes/mainJob.py plays the
// same from outside.
#pragma once
#include "check/look.h"
#include "check/notice.h"
#include "check/report.h"
#include "check/workplace.h"

#include <string>

namespace mainScene {

// Plays it with the programs of a bitness, win32 or win64.
void play(const workplace::Workplace& place, const std::wstring& bits, Eyes& eyes, Notice& notice,
          Report& report);

} // namespace mainScene
