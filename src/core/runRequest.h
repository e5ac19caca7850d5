// The run-request file: outside programs ask the system to open something by leaving a small text file in its
// folder.
#pragma once

namespace core {

class Hauptform;

/// At the start: a request left over from an earlier run is deleted unread. Errors of platform::kill.
void dropRunRequest();

/// On each tick. Not built yet: no request is seen.
void lookForRunRequest(Hauptform& form);

/// On the tick of Timer1. Not built yet.
void handleRunRequest(Hauptform& form);

} // namespace core
