// operator new and delete of the tests. They take their memory where the sanitizers look after it.
#include "failures/allocations.h"

#include "desktop/faults.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

bool watching = false;
int failing = 0;
bool forGood = false;
int allocations = 0;

/// Whether the program's next allocation fails.
bool failsNow() {
    if (!watching || !desktop::programRuns())
        return false;
    ++allocations;
    return failing != 0 && (allocations == failing || (forGood && allocations > failing));
}

/// As the library's own does it when the system has no memory.
void fail() {
    if (const std::new_handler handler = std::get_new_handler())
        handler();
    throw std::bad_alloc();
}

} // namespace

namespace failures {

void watchAllocations(int which, Failing how) {
    failing = which;
    forGood = how == Failing::forGood;
    allocations = 0;
    watching = true;
}

int stopAllocations() {
    watching = false;
    return allocations;
}

} // namespace failures

// NOLINTBEGIN(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory)

void* operator new(std::size_t size) {
    if (failsNow())
        fail();
    void* const block = std::malloc(size);
    if (block == nullptr)
        fail();
    return block;
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
    std::free(block);
}

// NOLINTEND(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory)
