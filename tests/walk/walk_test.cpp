// A short walk through the program's days, another one in each run. KESTREL_SEED gives the seed, and the run
// says which it was; kestrel-walk plays longer ones.
#include "walk/walk.h"

#include <doctest/doctest.h>

#include <cstdlib>
#include <random>

TEST_SUITE_BEGIN("walk/walk");

TEST_CASE("between any two events all stands where it belongs, and nothing is left over") {
    const char* const wanted = std::getenv("KESTREL_SEED"); // NOLINT(concurrency-mt-unsafe)
    const auto seed = wanted == nullptr ? std::random_device()() % 1'000'000
                                        : static_cast<std::uint32_t>(std::stoul(wanted));
    MESSAGE("the walk has the seed " << seed);
    constexpr int worlds = 4;
    constexpr int events = 500;
    for (std::uint32_t world = 0; world < worlds; ++world) {
        programWalk::Walk walk(seed + world);
        CHECK(walk.play(events) == events);
        CHECK(walk.report() == "");
    }
}

TEST_SUITE_END();
