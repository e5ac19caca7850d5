#include "toolbars/kinds.h"

#include <array>

namespace toolbars {

namespace {
constexpr std::array<Differences, 3> differences = {{
    {"BRD", 1, false, false, false, 300},
    {"SCH", 2, true, true, true, 345},
    {"LBR", 3, true, true, false, 300},
}};
} // namespace

const Differences& differencesOf(store::EditorKind kind) {
    return differences[static_cast<std::size_t>(kind)];
}

} // namespace toolbars
