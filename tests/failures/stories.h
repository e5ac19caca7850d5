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

} // namespace failures
