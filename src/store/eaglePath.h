// EAGLE's path: what is accepted as one.
#pragma once

#include <string_view>

namespace store {

/// Whether a path leads to a file that is there and bears EAGLE's name, in any mix of case.
bool isEaglePath(std::string_view path);

} // namespace store
