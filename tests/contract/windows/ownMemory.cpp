// operator new and delete of the tests: as the library's, and they count.
#include "contract/windows/counts.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

std::atomic<std::size_t> taken = 0;

} // namespace

namespace contract {

std::size_t ownBytes() {
    return taken;
}

} // namespace contract

void* operator new(std::size_t size) {
    void* const block = std::malloc(size);
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
