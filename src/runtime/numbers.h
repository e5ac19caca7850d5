// Reading, converting and formatting numbers the way the language's runtime does. Never locale dependent.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace runtime {

/// The number that a text begins with: leading blanks and tabs, sign, digits with one dot, exponent. 0 if it
/// does not begin with one. Error 6 beyond the range of a double.
double readNumber(std::string_view text);

/// Nearest integer, halves to even. Error 6 outside the range of the target.
std::int32_t roundToInt32(double value);
std::int16_t roundToInt16(double value);

/// The whole text, blanks around it aside, as one number, rounded. Error 13 if it is none, error 6 out of
/// range.
std::int32_t toInt32(std::string_view text);
std::int16_t toInt16(std::string_view text);

/// General text of a number, 15 significant digits.
std::string generalText(double value);

/// A number by one of the patterns "@" and "0.#" to "0.#######"; "@" and any other pattern give the general
/// text.
std::string formatNumber(double value, std::string_view pattern);

} // namespace runtime
