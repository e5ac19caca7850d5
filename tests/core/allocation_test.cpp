// The title tests run for every window on the desktop, five times a second and more: they take no memory.
#include "core/editorSearch.h"
#include "core/windoInf.h"

#include "desktop/desktop.h"

#include <doctest/doctest.h>

#if defined(__SANITIZE_ADDRESS__)

#include <cstddef>
#include <memory>
#include <string>

// The sanitizer's own interface; its header does not come with every compiler.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*)(const volatile void*, std::size_t),
                                                         void (*)(const volatile void*));

namespace {

int allocations = 0;
bool counting = false;

void onAllocation(const volatile void* /*block*/, std::size_t /*size*/) {
    if (counting)
        ++allocations;
}

void onFree(const volatile void* /*block*/) {}

} // namespace

TEST_SUITE_BEGIN("core/allocation");

TEST_CASE("a title test takes no memory from the heap") {
    desktop::Session session;
    for (int count = 0; count < 50; ++count)
        desktop::world().openWindow("A window of some other program with a long enough title " +
                                    std::to_string(count));
    const auto tick = [] {
        core::EditorSearch search;
        for (const store::EditorKind kind : store::editorKinds)
            search.front(kind);
    };
    core::findWindowByTitle("Schematic -");
    tick();
    static const int installed = __sanitizer_install_malloc_and_free_hooks(onAllocation, onFree);
    REQUIRE(installed > 0);
    const auto whole = desktop::world().order;
    allocations = 0;
    counting = true;
    const auto probe = std::make_unique<int>(1);
    const int seen = allocations;
    for (const platform::HWND window : whole)
        core::enumTitleCallback(window, -1);
    tick();
    counting = false;
    CHECK(seen == 1);
    CHECK(allocations == seen);
}

TEST_SUITE_END();

#endif
