// A whole number whose sums the language's runtime checks.
#pragma once

#include "runtime/runtimeError.h"

#include <cstdint>
#include <limits>

namespace runtime {

/// A 32-bit number. A sum beyond its range is error 6; with a plain number it would be anything.
class CheckedInt32 {
  public:
    /// Not explicit, as the way back: it is a number like any other.
    constexpr CheckedInt32(std::int32_t value) : value_(value) {}
    constexpr operator std::int32_t() const { return value_; }

    friend std::int32_t operator+(std::int32_t left, CheckedInt32 right) {
        using Limits = std::numeric_limits<std::int32_t>;
        const std::int64_t sum = std::int64_t{left} + right.value_;
        if (sum < Limits::min() || sum > Limits::max())
            throw RuntimeError(ErrorNumber::overflow);
        return static_cast<std::int32_t>(sum);
    }

  private:
    std::int32_t value_;
};

} // namespace runtime
