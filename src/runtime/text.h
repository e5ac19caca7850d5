// Text helpers: ANSI code page text in std::string. Positions count from 1, 0 means not found.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace runtime {

/// Lower case by the ANSI code page, so that umlauts fold too.
std::string lowerCase(std::string_view text);

/// Upper case: each letter becomes the one whose lower case it is.
std::string upperCase(std::string_view text);

/// Whether `text` holds `what`, which is in lower case, ignoring the case of `text`. Takes no memory.
bool holdsIgnoringCase(std::string_view text, std::string_view what);

/// Without leading and trailing blanks (and nothing but blanks).
std::string_view trim(std::string_view text);

/// Parts between the marks, always at least one. A mark is one character.
std::vector<std::string> split(std::string_view text, std::string_view mark);

/// Element `index` (from 0) of a split text; error 9 if there is none.
const std::string& element(const std::vector<std::string>& parts, std::size_t index);

/// Every occurrence of `what`, exact in case, replaced.
std::string replaceAll(std::string text, std::string_view what, std::string_view with);

/// The text up to its first NUL.
std::string_view untilNul(std::string_view text);

} // namespace runtime
