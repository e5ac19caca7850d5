// Word wrap for the printer.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace errors {

/// The lines that a text is printed in; it ends each of its lines with carriage return and line feed, and
/// what follows the last one is not printed. Words part at blanks and keep one behind them. A line takes
/// words as long as they fit into 73 columns, and at least one; what is left goes on in lines that are
/// indented by 20 blanks. Kept: the indent is not counted, so that those lines may reach 93 columns. A tab
/// counts as any character.
std::vector<std::string> printLines(std::string_view text);

} // namespace errors
