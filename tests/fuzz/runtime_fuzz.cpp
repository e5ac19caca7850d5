#include "codePages.h"
#include "fuzz/random.h"

#include "runtime/characters.h"
#include "runtime/keyText.h"
#include "runtime/numbers.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <cmath>
#include <cstring>

using fuzz::Random;
using runtime::ErrorNumber;
using runtime::RuntimeError;

namespace {

double anyDouble(Random& random) {
    const std::uint64_t bits = random.bits();
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

/// Sign, digits, the mark, at most `decimals` digits of which the last is not 0.
bool fixedShape(std::string_view text, std::size_t decimals) {
    if (text.starts_with('-'))
        text.remove_prefix(1);
    const std::size_t mark = text.find('.');
    if (mark == 0 || mark == std::string_view::npos)
        return false;
    const std::string_view behind = text.substr(mark + 1);
    const bool plainZero = mark == 1 || text.front() != '0';
    return plainZero && text.substr(0, mark).find_first_not_of("0123456789") == std::string_view::npos &&
           behind.size() <= decimals && behind.find_first_not_of("0123456789") == std::string_view::npos &&
           !behind.ends_with('0');
}

} // namespace

TEST_SUITE_BEGIN("fuzz/runtime");

TEST_CASE(
    "random texts read as a finite number or overflow, and strictly as an integer or one of two errors") {
    Random random(1);
    for (int round = 0; round < 20000; ++round) {
        const std::string text = random.text(" \t+-.0123456789eE,x", 30);
        double value = 0;
        try {
            value = runtime::readNumber(text);
            CHECK(std::isfinite(value));
        } catch (const RuntimeError& error) {
            CHECK(error.number == ErrorNumber::overflow);
        }
        try {
            const std::int32_t integer = runtime::toInt32(text);
            CHECK_MESSAGE(std::abs(integer - value) <= 0.5, text);
        } catch (const RuntimeError& error) {
            CHECK((error.number == ErrorNumber::overflow || error.number == ErrorNumber::typeMismatch));
        }
    }
}

TEST_CASE("random bytes are read as a number without harm") {
    Random random(2);
    for (int round = 0; round < 5000; ++round) {
        const std::string text = random.bytes(40);
        CHECK(std::isfinite(runtime::readNumber(text.substr(0, 20))));
    }
}

TEST_CASE("the general text of any number reads as that number within 15 digits") {
    Random random(3);
    for (int round = 0; round < 20000; ++round) {
        const double value = anyDouble(random);
        if (!std::isfinite(value) || std::abs(value) > 1.7e308 || std::abs(value) < 1e-300)
            continue;
        const std::string text = runtime::generalText(value);
        const double read = runtime::readNumber(text);
        CHECK_MESSAGE(std::abs(read - value) <= std::abs(value) * 5.1e-15, text);
        CHECK_MESSAGE(runtime::generalText(read) == text, text);
    }
}

TEST_CASE("a pattern gives a fixed text within half a step of the number") {
    Random random(4);
    for (int round = 0; round < 20000; ++round) {
        const std::size_t decimals = 1 + random.below(7);
        const double wide = anyDouble(random);
        const double value = round % 2 == 0 ? wide : static_cast<double>(random.bits() % 2000000) / 1e4 - 100;
        if (!std::isfinite(value))
            continue;
        const std::string text = runtime::formatNumber(value, "0." + std::string(decimals, '#'));
        CHECK_MESSAGE(fixedShape(text, decimals), text);
        if (std::abs(value) < 1e6)
            CHECK_MESSAGE(std::abs(runtime::readNumber(text) - value) <=
                              0.5000001 * std::pow(10, -static_cast<double>(decimals)),
                          text);
    }
}

TEST_CASE("random key text gives strokes for every character that is not notation, and never hangs") {
    Random random(5);
    constexpr char32_t sign = 0xA7;
    const std::string pieces[] = {"+",
                                  "^",
                                  "%",
                                  "(",
                                  ")",
                                  "{",
                                  "}",
                                  "[",
                                  "]",
                                  "~",
                                  " ",
                                  "{ENTER}",
                                  "a",
                                  "{TAB 3",
                                  "{F12}",
                                  "{a 2}",
                                  "{}",
                                  "{}}",
                                  "{{}",
                                  "2}",
                                  "x",
                                  "{left 2}",
                                  western("\xA7"),
                                  "()",
                                  "{FOO}",
                                  "{ENTER ",
                                  "{(}"};
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t count = random.below(12); count > 0; --count)
            text += random.oneOf(pieces);
        const auto strokes = runtime::parseKeyText(text);
        std::size_t letters = 0;
        for (const platform::KeyStroke& stroke : strokes) {
            CHECK((stroke.key == platform::Key::none || stroke.character == 0));
            if (stroke.character == 'x' || stroke.character == sign)
                ++letters;
        }
        std::size_t written = 0;
        for (const char32_t character : runtime::toUtf32(text))
            written += character == 'x' || character == sign ? 1 : 0;
        CHECK_MESSAGE(letters == written, text);
    }
}

TEST_CASE("random bytes as key text are read without harm") {
    Random random(6);
    for (int round = 0; round < 5000; ++round) {
        const std::string text = random.bytes(300);
        CHECK(runtime::parseKeyText(text).size() <= text.size() * 1000);
    }
}

TEST_CASE("any text whose characters stand between braces is typed as it is") {
    Random random(7);
    for (int round = 0; round < 2000; ++round) {
        const std::string text = random.bytes(60);
        std::string braced;
        for (const char32_t character : runtime::toUtf32(text))
            braced += "{" + runtime::fromUtf32({&character, 1}) + "}";
        std::u32string typed;
        for (const platform::KeyStroke& stroke : runtime::parseKeyText(braced)) {
            CHECK(stroke.key == platform::Key::none);
            typed += stroke.character;
        }
        CHECK(typed == runtime::toUtf32(text));
    }
}

TEST_SUITE_END();
