#include "desktop/faults.h"

#include <utility>

namespace desktop {

namespace {

bool programsTurn = false;

} // namespace

bool programRuns() {
    return programsTurn;
}

Turn::Turn(bool program) : before_(std::exchange(programsTurn, program)) {}

Turn::~Turn() {
    programsTurn = before_;
}

Faults& faults() {
    static Faults all;
    return all;
}

void Faults::watch(int failing) {
    *this = {};
    watching_ = true;
    failing_ = failing;
}

void Faults::stop() {
    watching_ = false;
}

Call::Call(const char* name) {
    Faults& all = faults();
    if (all.onCall)
        all.onCall(name);
    if (!all.watching_)
        return;
    ++all.counts_[name];
    fails_ = ++all.calls_ == all.failing_;
    if (fails_)
        all.failed_ = name;
}

} // namespace desktop
