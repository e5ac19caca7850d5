// Seven stories of a run, told one after the other by the same program, and what there is to see after each.
//
// The tests that let something fail tell each of them again and again, with another call or allocation
// failing.
#pragma once

#include "desktop/program.h"

#include <array>
#include <map>
#include <memory>
#include <string>

namespace failures {

/// What can be seen of the program and its desktop, each under a name: "typed", "settings", "toolbars" ...
using Facts = std::map<std::string, std::string>;

struct Story {
    const char* name;
    /// What comes before: nothing fails in it.
    void (*begin)(desktop::Program& program);
    void (*tell)(desktop::Program& program);
};

inline constexpr std::size_t storyCount = 7;
extern const std::array<Story, storyCount> stories;

Facts factsOf(desktop::Program& program);

/// The values of a settings file: by section and key in lower case, in one line each.
std::map<std::string, std::string> settingsOf(const std::string& file);

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
