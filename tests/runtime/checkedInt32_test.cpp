#include "runtime/checkedInt32.h"

#include "runtime/errorOf.h"

#include <doctest/doctest.h>

#include <limits>

using runtime::CheckedInt32;

TEST_SUITE_BEGIN("runtime/checkedInt32");

TEST_CASE("a sum beyond 32 bits is an overflow, up and down") {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    CHECK(most - 1 + CheckedInt32(1) == most);
    CHECK(least + 1 + CheckedInt32(-1) == least);
    CHECK(runtime::errorOf([] { static_cast<void>(most + CheckedInt32(1)); }) == 6);
    CHECK(runtime::errorOf([] { static_cast<void>(least + CheckedInt32(-1)); }) == 6);
}

TEST_SUITE_END();
