// The run-request file: outside programs ask the system to open something by leaving a small text file in its
// folder. The tick looks for it and goes off; half a second later, when its writer has had time to finish, it
// is read, deleted and handed to the shell.
#pragma once

#include <string>
#include <string_view>

namespace core {

class Hauptform;

/// At the start: a request left over from an earlier run is deleted unread. Errors of platform::kill.
void dropRunRequest();

/// On each tick: if the file is there, Timer2 goes off and Timer1 on.
void lookForRunRequest(Hauptform& form);

/// On the tick of Timer1. Errors of reading and deleting the file, with both timers left off; a request that
/// cannot be opened fails silently.
void handleRunRequest(Hauptform& form);

/// What a request asks for.
struct RunRequest {
    std::string program;
    std::string parameters;
};

/// Takes a request's line apart: the program stands before the first quote, the parameters between the first
/// and the second. A quote behind position 32767 does not count.
RunRequest splitRunRequest(std::string_view line);

} // namespace core
