// What comes of a story in which something has failed.
#pragma once

#include "failures/stories.h"

#include <map>
#include <string>

namespace failures {

/// What a story has come to.
struct Told {
    Facts facts; ///< "worksOn" among them, unless the program has ended
    std::map<std::string, std::string> settingsBefore;
    std::map<std::string, std::string> settingsAfter;
    std::map<std::string, std::string> settingsKept; ///< in the file with the old ones
};

/// Of a story that has just been told. Opens one editor more, to see whether the program works on.
Told outcomeOf(desktop::Program& program, const std::map<std::string, std::string>& settingsBefore);

/// The error that the program has told of when it ended, 0 if it has not ended by one.
int errorOf(const Told& told);

/// Each value of the settings file is the one before the story or the one that it would have written.
bool oldOrNew(const Told& told, const Told& whole);

} // namespace failures
