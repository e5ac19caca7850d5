// The button tag: path, dialog, param and type of a row, joined by the section sign. It is the only link
// between a toolbar button and what it does.
#pragma once

#include "store/buttonLists.h"

#include <string>
#include <vector>

namespace toolbars {

/// The section sign in the code page in force.
const std::string& tagMark();

/// Places of the fields in a tag.
namespace tagField {
inline constexpr std::size_t path = 0;
inline constexpr std::size_t dialog = 1;
inline constexpr std::size_t param = 2;
inline constexpr std::size_t type = 3;
} // namespace tagField

/// Kept: a mark inside path or param moves the later fields, nothing escapes it; unless Mend::noEnd is in
/// force.
std::string buttonTag(const store::ToolButton& button);

/// The fields of a tag, at their places.
std::vector<std::string> tagFields(const std::string& tag);

} // namespace toolbars
