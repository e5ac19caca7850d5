// No room is left for large things.
#pragma once

#include <cstddef>

namespace contract {

/// From its making to its end a C++ object of so many bytes or more cannot be had; smaller ones can. One at a
/// time.
class MemoryLimit {
  public:
    explicit MemoryLimit(std::size_t bytes);
    ~MemoryLimit();
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;
};

} // namespace contract
