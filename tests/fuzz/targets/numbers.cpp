// Numbers and patterns: the first byte says what the rest is.
#include "fuzz/targets/targets.h"

#include "runtime/numbers.h"
#include "runtime/runtimeError.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>

namespace fuzz {

namespace {

using runtime::ErrorNumber;

std::optional<double> readOf(std::string_view text) {
    try {
        const double value = runtime::readNumber(text);
        expect(std::isfinite(value), "a number that is read is finite", text);
        return value;
    } catch (const runtime::RuntimeError& error) {
        expect(error.number == ErrorNumber::overflow, "a number that cannot be read is too large", text);
        return std::nullopt;
    }
}

void texts(std::string_view text) {
    const std::optional<double> value = readOf(text);
    std::optional<std::int32_t> whole;
    try {
        whole = runtime::toInt32(text);
        expect(value && std::abs(*whole - *value) <= 0.5, "an integer is its number rounded", text);
    } catch (const runtime::RuntimeError& error) {
        expect(error.number == ErrorNumber::overflow || error.number == ErrorNumber::typeMismatch,
               "a text is an integer or one of two errors", text);
    }
    try {
        const std::int16_t narrow = runtime::toInt16(text);
        expect(whole && *whole == narrow, "both integers of a text are the same", text);
    } catch (const runtime::RuntimeError& error) {
        expect(error.number == ErrorNumber::overflow || (!whole && error.number == ErrorNumber::typeMismatch),
               "a text that is one integer is too large for the other", text);
    }
}

void formats(double value, std::size_t decimals, std::string_view pattern) {
    if (!std::isfinite(value))
        return;
    const std::string general = runtime::generalText(value);
    if (const std::optional<double> read = readOf(general)) {
        // Half a step of the last digit, and half a step of the number that it is read as.
        expect(std::abs(*read - value) <= std::abs(value) * 5.2e-15 + 1e-307, "general text keeps 15 digits",
               general);
        expect(runtime::generalText(*read) == general || std::abs(value) < 1e-300,
               "general text of what it reads as is the same", general);
    }
    const std::string fixed = runtime::formatNumber(value, "0." + std::string(decimals, '#'));
    const std::size_t mark = fixed.find('.');
    expect(mark != std::string::npos && mark > 0 && fixed.size() - mark - 1 <= decimals &&
               fixed.back() != '0' &&
               fixed.find_first_not_of("0123456789", fixed.front() == '-' ? 1 : 0) == mark,
           "a pattern gives digits, the mark and at most its decimals", fixed);
    if (std::abs(value) < 1e6)
        expect(std::abs(readOf(fixed).value_or(1e9) - value) <=
                   0.5 * std::pow(10, -static_cast<double>(decimals)) + (std::abs(value) + 1) * 1e-14,
               "a pattern rounds to half a step", fixed);
    // Any other pattern gives the general text.
    const bool known = pattern.starts_with("0.#") &&
                       pattern.find_first_not_of('#', 2) == std::string_view::npos && pattern.size() <= 9;
    if (!known)
        expect(runtime::formatNumber(value, pattern) == general, "an unknown pattern is no pattern", pattern);
}

} // namespace

void numbers(std::string_view input) {
    Reader reader(input);
    const std::size_t what = reader.below(8);
    const std::string_view rest = reader.rest();
    if (what == 0) {
        texts(rest);
        return;
    }
    double value = 0;
    if (rest.size() < sizeof value) {
        value = readOf(rest).value_or(0);
        formats(value, what, rest);
        return;
    }
    std::memcpy(&value, rest.data(), sizeof value);
    formats(value, what, rest.substr(sizeof value));
}

} // namespace fuzz
