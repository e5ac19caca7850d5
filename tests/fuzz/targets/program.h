// The program as the targets of the whole program run it: its end by an error is as good an outcome as any
// that the texts of the runtime's errors name, but only that.
#pragma once

#include "desktop/program.h"
#include "fuzz/targets/targets.h"

#include "core/frmMenu.h"
#include "setup/frmSetup.h"

#include <set>

namespace fuzz {

/// Lets a program go on through a step. False once it has ended; it may do so by one of the errors given.
inline bool goesOn(desktop::Program& program, const std::set<int>& errors, bool running) {
    desktop::World& desk = program.desk();
    if (running && !desk.ended)
        return true;
    constexpr std::string_view begin = "Run-time error '";
    expect(!desk.messageBoxes.empty(), "a program that ends says why");
    const std::string& text = desk.messageBoxes.back().text;
    expect(text.starts_with(begin) && errors.contains(std::atoi(text.c_str() + begin.size())),
           "a program ends by an error that is known", text);
    expect(!desk.trayIcon, "the tray icon goes with the program");
    return false;
}

/// What holds between two events of a program that runs.
void checkProgram(desktop::Program& program);

} // namespace fuzz
