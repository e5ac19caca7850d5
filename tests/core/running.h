// What most stories of the core begin with.
#pragma once

#include "desktop/program.h"

#include <doctest/doctest.h>

/// A program that has been started beside a running EAGLE.
struct Running : desktop::Program {
    Running() {
        desk().startProcess("EAGLE.EXE");
        REQUIRE(start());
    }
};
