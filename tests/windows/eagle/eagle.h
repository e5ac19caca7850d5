// The stand-in as a whole: what its commands do, what the driver's orders do, when it ends.
#pragma once
#include "common/orders.h"
#include "eagle/commandLine.h"
#include "eagle/kinds.h"

#include <string>

namespace eagle {

// Opens a window for a file whose extension names a kind, and runs the command in it; without a file the
// command runs in no window.
void start(const commandLine::Start& start, bool german);

// Runs a command text, its parts separated by semicolons. "edit FILE" and "open FILE" open the file's
// editor, "quit" ends the program; every other command has no effect but stands in the journal.
void runCommands(const std::wstring& commands, bool german);

// One of the driver's orders, on the window thread; answers it in the journal.
void obey(const orders::Order& order);

// Ends a hang that an order has begun; on any thread.
void wake();

} // namespace eagle
