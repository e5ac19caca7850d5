#include "fuzz/targets/targets.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace fuzz {

void wrong(const char* what, std::string_view about) {
    std::fprintf(stderr, "WRONG: %s: %.*s\n", what, static_cast<int>(about.size()), about.data());
    std::abort();
}

std::size_t Reader::below(std::size_t bound) {
    if (rest_.empty())
        return 0;
    const auto value = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    return value % bound;
}

std::string Reader::text() {
    const std::size_t length = std::min(rest_.find('\n'), rest_.size());
    std::string result(rest_.substr(0, length));
    rest_.remove_prefix(std::min(length + 1, rest_.size()));
    return result;
}

} // namespace fuzz
