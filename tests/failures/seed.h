// Which of many failures a run of the tests tries.
//
// All of them take minutes. By itself a run takes a sample, another one each time, and prints the seed that
// gives the same one again: KESTREL_SEED=17. KESTREL_ALL=1 takes all.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>

namespace failures {

inline std::uint32_t seed() {
    static const std::uint32_t chosen = [] {
        const char* const given = std::getenv("KESTREL_SEED");
        return given != nullptr ? static_cast<std::uint32_t>(std::stoul(given)) : std::random_device{}();
    }();
    return chosen;
}

inline bool all() {
    return std::getenv("KESTREL_ALL") != nullptr;
}

} // namespace failures
