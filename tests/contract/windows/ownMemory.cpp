// operator new and delete of the tests: as the library's, and they count, and refuse what is too large.
#include "contract/windows/counts.h"
#include "contract/windows/memoryLimit.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

std::atomic<std::size_t> taken = 0;
std::atomic<std::size_t> tooLarge = SIZE_MAX;

} // namespace

namespace contract {

std::size_t ownBytes() {
    return taken;
}

MemoryLimit::MemoryLimit(std::size_t bytes) {
    tooLarge = bytes;
}

MemoryLimit::~MemoryLimit() {
    tooLarge = SIZE_MAX;
}

} // namespace contract

void* operator new(std::size_t size) {
    void* const block = size < tooLarge ? std::malloc(size) : nullptr;
    if (block == nullptr)
        throw std::bad_alloc();
    taken += _msize(block);
    return block;
}

void operator delete(void* block) noexcept {
    if (block != nullptr)
        taken -= _msize(block);
    std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
    operator delete(block);
}
