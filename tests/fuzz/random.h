// Random input for tests, the same in every run.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace fuzz {

class Random {
  public:
    explicit Random(std::uint32_t seed) : engine_(seed) {}

    /// 0 to `bound` - 1. Not by a distribution, whose numbers are each library's own.
    std::size_t below(std::size_t bound) { return engine_() % bound; }
    std::uint64_t bits() { return std::uint64_t{engine_()} << 32 | engine_(); }

    /// Up to `most` pieces of `pieces`, which are single characters.
    std::string text(std::string_view pieces, std::size_t most) {
        std::string result(below(most + 1), ' ');
        for (char& character : result)
            character = pieces[below(pieces.size())];
        return result;
    }
    std::string bytes(std::size_t most) {
        std::string result(below(most + 1), ' ');
        for (char& character : result)
            character = static_cast<char>(below(256));
        return result;
    }
    template <typename Text, std::size_t Count>
    std::string oneOf(const Text (&choices)[Count]) {
        return choices[below(Count)];
    }

  private:
    std::mt19937 engine_;
};

} // namespace fuzz
