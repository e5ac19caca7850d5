// The program that plays new input, with clang's fuzzer around it: FUZZ_TARGET names the target.
#include "desktop/desktop.h"
#include "fuzz/targets/targets.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

const fuzz::Target* chosen = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
    const char* name = std::getenv("FUZZ_TARGET");
    for (const fuzz::Target& target : fuzz::targets)
        if (name != nullptr && std::string_view(target.name) == name)
            chosen = &target;
    if (chosen == nullptr) {
        std::fputs("FUZZ_TARGET names none of the targets:", stderr);
        for (const fuzz::Target& target : fuzz::targets)
            std::fprintf(stderr, " %s", target.name);
        std::fputs("\n", stderr);
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    chosen->play({reinterpret_cast<const char*>(data), size});
    return 0;
}
