// The button tag: path, dialog, param and type of a row, joined by the section sign. It is the only link
// between a toolbar button and what it does.
#pragma once

#include "store/buttonLists.h"

#include <string>
#include <vector>

namespace toolbars {

/// The section sign in the code page in force.
const std::string& tagMark();

/// Places of the fields in a tag. Kept: a mark inside path or param moves the later ones, nothing escapes it.
namespace tagField {
inline constexpr std::size_t path = 0;
inline constexpr std::size_t dialog = 1;
inline constexpr std::size_t param = 2;
inline constexpr std::size_t type = 3;
} // namespace tagField

std::string buttonTag(const store::ToolButton& button);

} // namespace toolbars
