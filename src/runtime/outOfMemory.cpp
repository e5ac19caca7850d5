#include "runtime/outOfMemory.h"

#include "runtime/runtimeError.h"

#include <new>

namespace runtime {

namespace {

/// What the library may catch as its own, too. Its description is short enough to need no memory.
class OutOfMemory final : public RuntimeError, public std::bad_alloc {
  public:
    OutOfMemory() : RuntimeError(ErrorNumber::outOfMemory) {}

    [[nodiscard]] const char* what() const noexcept override { return RuntimeError::what(); }
};

[[noreturn]] void failed() {
    throw OutOfMemory();
}

} // namespace

void raiseOutOfMemory() {
    std::set_new_handler(failed);
}

} // namespace runtime
