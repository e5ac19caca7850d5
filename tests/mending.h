// What the tests of the mends begin with: a program with the switch off or on.
#pragma once

#include "desktop/program.h"
#include "store/mends.h"

#include <doctest/doctest.h>

#include <string>

/// Off and on, for tests that tell what both do.
inline constexpr bool offAndOn[] = {false, true};

/// A program that has been started beside a running EAGLE, with the switch and the settings given. The
/// settings begin with the keys of section "global".
struct Mending : desktop::Program {
    explicit Mending(bool on, const std::string& settings = {}) {
        desk().startProcess("EAGLE.EXE");
        desk().writeSettings("[global]\r\n" + std::string(on ? "mend=1\r\n" : "") + settings);
        REQUIRE(start());
        REQUIRE(store::mendsOn == on);
    }
};
