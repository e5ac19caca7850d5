// Plays walks through the program's days, each in a world of its own:
//
//   kestrel-walk [WORLDS [SEED [EVENTS]]]
//
// So many worlds from a seed on, one seed each: 10 from 1 on, each of 10,000 events, if nothing else is said.
// The first thing that is wrong ends it, with its seed and the events before it: kestrel-walk 1 SEED plays it
// again.
#include "walk/walk.h"

#include <cstdio>
#include <cstdlib>
#include <span>

int main(int count, char** values) {
    const std::span<char*> arguments(values, static_cast<std::size_t>(count));
    const auto number = [&](std::size_t index, long otherwise) {
        constexpr int decimal = 10;
        return arguments.size() > index ? std::strtol(arguments[index], nullptr, decimal) : otherwise;
    };
    const long worlds = number(1, 10);
    const long first = number(2, 1);
    const long events = number(3, programWalk::eventsOfWorld);
    long played = 0;
    for (long world = 0; world < worlds; ++world) {
        programWalk::Walk walk(static_cast<std::uint32_t>(first + world));
        played += walk.play(static_cast<int>(events));
        if (const std::string report = walk.report(); !report.empty()) {
            std::printf("WRONG: %s\n%ld events, seeds from %ld on\n%ld passed, 1 failed\n", report.c_str(),
                        played, first, world);
            return EXIT_FAILURE;
        }
    }
    std::printf("%ld events, seeds from %ld on\n%ld passed, 0 failed\n", played, first, worlds);
    return EXIT_SUCCESS;
}
