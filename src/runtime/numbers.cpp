// Both directions go through the C runtime's decimal conversion, which is exact as long as its locale is "C":
// the program never sets another.
#include "runtime/numbers.h"

#include "runtime/runtimeError.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace runtime {

namespace {

constexpr bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

constexpr bool isBlank(char character) {
    return character == ' ' || character == '\t';
}

/// Where a number stands in a text; first == last if the text does not begin with one.
struct NumberRange {
    std::size_t first = 0;
    std::size_t last = 0;
};

NumberRange findNumber(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size() && isBlank(text[at]))
        ++at;
    const std::size_t first = at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-'))
        ++at;
    std::size_t digits = 0;
    bool dot = false;
    for (; at < text.size() && (isDigit(text[at]) || (text[at] == '.' && !dot)); ++at) {
        if (text[at] == '.')
            dot = true;
        else
            ++digits;
    }
    if (digits == 0)
        return {first, first};
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        std::size_t exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-'))
            ++exponent;
        if (exponent < text.size() && isDigit(text[exponent])) {
            while (exponent < text.size() && isDigit(text[exponent]))
                ++exponent;
            at = exponent;
        }
    }
    return {first, at};
}

double convert(std::string_view text, NumberRange range) {
    if (range.first == range.last)
        return 0;
    const std::string number(text.substr(range.first, range.last - range.first));
    const double value = std::strtod(number.c_str(), nullptr);
    if (std::isinf(value))
        throw RuntimeError(ErrorNumber::overflow);
    return value;
}

double wholeNumber(std::string_view text) {
    const NumberRange range = findNumber(text);
    std::size_t rest = range.last;
    while (rest < text.size() && isBlank(text[rest]))
        ++rest;
    if (range.first == range.last || rest != text.size())
        throw RuntimeError(ErrorNumber::typeMismatch);
    return convert(text, range);
}

template <typename Integer>
Integer roundTo(double value) {
    const double rounded = std::nearbyint(value); // the default rounding mode: halves to even
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        throw RuntimeError(ErrorNumber::overflow);
    return static_cast<Integer>(rounded);
}

/// A number without its sign as decimal digits: 0.DIGITS times 10 to the power of `point`. No digit is zero.
struct Decimal {
    std::string digits;
    int point = 0;
};

/// Keeps `count` digits, halves away from zero.
void roundDigits(Decimal& decimal, int count) {
    std::string& digits = decimal.digits;
    if (count < 0)
        digits.clear();
    else if (static_cast<std::size_t>(count) < digits.size()) {
        const bool up = digits[static_cast<std::size_t>(count)] >= '5';
        digits.resize(static_cast<std::size_t>(count));
        if (up) {
            while (!digits.empty() && digits.back() == '9')
                digits.pop_back();
            if (digits.empty()) {
                digits = "1";
                ++decimal.point;
            } else {
                ++digits.back();
            }
        }
    }
    digits.resize(digits.find_last_not_of('0') + 1);
}

constexpr int significantDigits = 15;

/// The 15-digit decimal of a finite number. The conversion gives far more digits than the 15 that are kept,
/// since two roundings in a row, or one of halves to even, would end elsewhere.
Decimal toDecimal(double value) {
    constexpr int converted = 40;
    char text[converted + 16];
    const int length = std::snprintf(text, sizeof text, "%.*e", converted - 1, std::fabs(value));
    const std::string_view written(text, static_cast<std::size_t>(length));
    const std::size_t mark = written.find('e');
    Decimal decimal;
    decimal.digits = text[0];
    decimal.digits += written.substr(2, mark - 2);
    decimal.point = std::atoi(text + mark + 1) + 1;
    if (decimal.digits[0] == '0')
        return {};
    roundDigits(decimal, significantDigits);
    return decimal;
}

/// Integer digits (at least one), the mark, decimals.
std::string fixedText(const Decimal& decimal) {
    const int count = static_cast<int>(decimal.digits.size());
    if (decimal.point <= 0)
        return "0." + std::string(count == 0 ? 0U : static_cast<std::size_t>(-decimal.point), '0') +
               decimal.digits;
    if (count <= decimal.point)
        return decimal.digits + std::string(static_cast<std::size_t>(decimal.point - count), '0') + ".";
    std::string text = decimal.digits;
    text.insert(static_cast<std::size_t>(decimal.point), 1, '.');
    return text;
}

std::string exponentText(const Decimal& decimal) {
    std::string text = decimal.digits.substr(0, 1);
    if (decimal.digits.size() > 1)
        text += "." + decimal.digits.substr(1);
    const int exponent = decimal.point - 1;
    const std::string power = std::to_string(std::abs(exponent));
    text += exponent < 0 ? "E-" : "E+";
    if (power.size() < 2)
        text += '0';
    return text + power;
}

/// Number of decimals that a pattern "0.#" to "0.#######" allows; 0 for any other.
int patternDecimals(std::string_view pattern) {
    if (!pattern.starts_with("0.#") || pattern.size() > 9 ||
        pattern.find_first_not_of('#', 2) != pattern.npos)
        return 0;
    return static_cast<int>(pattern.size()) - 2;
}

} // namespace

double readNumber(std::string_view text) {
    return convert(text, findNumber(text));
}

std::int32_t roundToInt32(double value) {
    return roundTo<std::int32_t>(value);
}

std::int16_t roundToInt16(double value) {
    return roundTo<std::int16_t>(value);
}

std::int32_t toInt32(std::string_view text) {
    return roundTo<std::int32_t>(wholeNumber(text));
}

std::int16_t toInt16(std::string_view text) {
    return roundTo<std::int16_t>(wholeNumber(text));
}

std::string generalText(double value) {
    if (std::isnan(value))
        return "-1.#IND";
    if (std::isinf(value))
        return value < 0 ? "-1.#INF" : "1.#INF";
    const Decimal decimal = toDecimal(value);
    const int count = static_cast<int>(decimal.digits.size());
    if (count == 0)
        return "0";
    const std::string sign = value < 0 ? "-" : "";
    if (decimal.point > significantDigits || count - decimal.point > significantDigits)
        return sign + exponentText(decimal);
    std::string text = fixedText(decimal);
    if (text.back() == '.')
        text.pop_back();
    return sign + text;
}

std::string formatNumber(double value, std::string_view pattern) {
    const int decimals = patternDecimals(pattern);
    if (decimals == 0 || !std::isfinite(value))
        return generalText(value);
    Decimal decimal = toDecimal(value);
    roundDigits(decimal, decimal.point + decimals);
    return (value < 0 ? "-" : "") + fixedText(decimal);
}

} // namespace runtime
