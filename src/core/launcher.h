// The launcher: starts EAGLE, optionally with the files of the last work, or brings a running one to the
// front.
#pragma once

#include <array>
#include <string>

namespace core {

/// One run, from the settings of this moment. A wrong path to EAGLE is told in a message and nothing is
/// started. Errors: 53 if the command line cannot be started, 5 if no window begins with the title to be
/// activated and that is not mended, 6 for a setting beyond its range.
void startEagle();

/// What follows EAGLE's path on its command line for the names of the last board, schematic and library;
/// those that are empty are left out.
std::string commandLineTail(const std::array<std::string, 3>& names);

} // namespace core
