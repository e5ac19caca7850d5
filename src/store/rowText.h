// Rows of a button list as text, as users copy them from one list to another, into a mail and back: the lines
// that the settings file has of them.
#pragma once

#include "store/buttonLists.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace store {

/// The lines of a row under a number, with the line ends of Windows.
std::string rowText(const ToolButton& row, std::int32_t number);

/// The rows that a text holds, in the order in which they stand there; their numbers only keep them apart.
/// Blanks and the marks of a mail in front of a line do not count, nor do heads of sections, nor what stands
/// before, between and behind the rows.
///
/// Nothing if there is none, and if one of them is no row that the program could live with: one without a
/// name, with a dialog or type of another number than those that there are, with an icon that cannot be taken
/// apart, with a value that the settings file would not give back whole, or with a line of another kind
/// inside it, which is how a mail breaks a long line. So is one with a section sign in its path or question,
/// unless that is mended, since a click on its button would end the program.
std::optional<std::vector<ToolButton>> rowsOf(std::string_view text);

/// Whether a path or question may go into a button: whole in the settings file, and without a section sign
/// unless that is mended.
bool fitsButton(const std::string& text);

/// Whether an icon's reference can be taken apart into the file that it names.
bool fitsIcon(const std::string& reference);

} // namespace store
