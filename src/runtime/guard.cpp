#include "runtime/guard.h"

namespace runtime {

namespace {

bool ending = false;

/// Up to the end of the program, which in the tests is not the end of the process.
struct Ending {
    Ending() { ending = true; }
    ~Ending() { ending = false; }
    Ending(const Ending&) = delete;
    Ending& operator=(const Ending&) = delete;
};

} // namespace

bool endingByError() {
    return ending;
}

void unhandled(const RuntimeError& error) {
    const Ending untilTheEnd;
    endByError(error);
}

} // namespace runtime
