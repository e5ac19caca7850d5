// What the shell is asked to open.
#pragma once

#include "platform/types.h"

#include <cstdint>
#include <string>

namespace win32 {

/// As platform::ShellExecuteA takes it.
struct Opening {
    platform::HWND owner = platform::HWND::none;
    std::string verb;
    std::string file;
    std::string parameters;
    std::string folder;
    int command = 0;
    std::intptr_t result = 0; ///< above 32: it is open
};

/// Asks the shell and gives the opening its result; tells whether the file's host has answered. Shows nothing
/// of our own on failure. Takes as long as the shell does, and as the user does where the system has a
/// question: for a thread that is not waited for long.
bool open(Opening& opening);

} // namespace win32
