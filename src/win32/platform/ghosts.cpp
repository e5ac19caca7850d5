#include "win32/platform/ghosts.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace win32 {

namespace {

struct Known {
    HWND window;
    bool ghost;
    unsigned met; ///< in this walk, the last time
};

/// In the order of the handles and in one piece: windows come and go, and a piece for each would stay
/// scattered over the heap.
std::vector<Known>& known() {
    static std::vector<Known> all;
    return all;
}

unsigned walks = 0;

/// So many walks, a minute of ticks, a window is remembered that they end in front of.
constexpr unsigned outOfReach = 300;

bool hasGhostClass(HWND window) {
    constexpr std::string_view ghost = "Ghost";
    std::array<char, ghost.size() + 2> name{}; // a longer name is seen to be another one
    const int length = GetClassNameA(window, name.data(), static_cast<int>(name.size()));
    return ghost == std::string_view(name.data(), static_cast<std::size_t>(length));
}

} // namespace

GhostWalk::GhostWalk() : number_(++walks) {}

bool GhostWalk::isGhost(HWND window) {
    auto entry = std::ranges::lower_bound(known(), window, {}, &Known::window);
    if (entry == known().end() || entry->window != window)
        entry = known().insert(entry, {window, hasGhostClass(window), number_});
    else if (entry->ghost && entry->met != number_)
        entry->ghost = hasGhostClass(window);
    entry->met = number_;
    return entry->ghost;
}

void GhostWalk::end(bool complete) const {
    // Walks inside this one have higher numbers.
    std::erase_if(known(), [this, complete](const Known& window) {
        return window.met < number_ && (complete || number_ - window.met > outOfReach);
    });
}

} // namespace win32
