#include "runtime/errorOf.h"
#include "runtime/numbers.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <sstream>

using runtime::ErrorNumber;
using runtime::errorOf;
using runtime::RuntimeError;

namespace {

int readError(const std::string& text) {
    return errorOf([&] { runtime::readNumber(text); });
}
int error16(const std::string& text) {
    return errorOf([&] { runtime::toInt16(text); });
}
int error32(const std::string& text) {
    return errorOf([&] { runtime::toInt32(text); });
}

} // namespace

TEST_SUITE_BEGIN("runtime/numbers");

TEST_CASE("a number is read as far as it goes") {
    CHECK(runtime::readNumber("12") == 12);
    CHECK(runtime::readNumber(" \t 12.5mm") == 12.5);
    CHECK(runtime::readNumber("-3") == -3);
    CHECK(runtime::readNumber("+3") == 3);
    CHECK(runtime::readNumber(".5") == 0.5);
    CHECK(runtime::readNumber("5.") == 5);
    CHECK(runtime::readNumber("1.2.3") == 1.2);
    CHECK(runtime::readNumber("1,5") == 1);
    CHECK(runtime::readNumber("1 2") == 1);
    CHECK(runtime::readNumber("007") == 7);
    CHECK(runtime::readNumber("0.1") == 0.1);
    CHECK(runtime::readNumber("123456789.123456789") == 123456789.123456789);
}

TEST_CASE("an exponent ends where the text does, whatever stands behind that") {
    const std::string_view whole = "12e+57";
    CHECK(runtime::readNumber(whole.substr(0, 3)) == 12);
    CHECK(runtime::readNumber(whole.substr(0, 4)) == 12);
    CHECK(runtime::readNumber(whole.substr(0, 5)) == 12e5);
    CHECK(runtime::readNumber(whole.substr(0, 1)) == 1);
    CHECK(runtime::toInt32(std::string_view("1e11").substr(0, 3)) == 10);
}

TEST_CASE("an exponent counts only if a digit follows") {
    CHECK(runtime::readNumber("1e3") == 1000);
    CHECK(runtime::readNumber("1E+3x") == 1000);
    CHECK(runtime::readNumber("25e-1") == 2.5);
    CHECK(runtime::readNumber("2e") == 2);
    CHECK(runtime::readNumber("2e+") == 2);
    CHECK(runtime::readNumber("2ex") == 2);
    CHECK(runtime::readNumber("2e 3") == 2);
    CHECK(runtime::readNumber("1d3") == 1);
}

TEST_CASE("a text without digits reads as 0") {
    for (const char* text : {"", " ", "abc", "-", "+", ".", "-.", "e5", ".e5", "--1", "- 1", "inf", "-inf",
                             "nan", "infinity", "&HFF", "\n1", "x1",
                             "\xA0"
                             "1"})
        CHECK_MESSAGE(runtime::readNumber(text) == 0, text);
    CHECK(runtime::readNumber("0x1F") == 0);
    CHECK(runtime::readNumber(std::string_view("1\0"
                                               "2",
                                               3)) == 1);
}

TEST_CASE("a number beyond the range of a double is an overflow, one too small is not") {
    CHECK(runtime::readNumber("1.7976931348623157e308") == std::numeric_limits<double>::max());
    CHECK(readError("1e309") == 6);
    CHECK(readError("-1e309") == 6);
    CHECK(readError("1e99999999999999999999") == 6);
    CHECK(readError(std::string(400, '9')) == 6);
    CHECK(runtime::readNumber("1e-400") == 0);
    CHECK(runtime::readNumber("0e99999999999999999999") == 0);
    CHECK(runtime::readNumber(std::string(10000, '0') + "7") == 7);
}

TEST_CASE("rounding goes to the nearest integer, halves to even") {
    CHECK(runtime::roundToInt32(0.5) == 0);
    CHECK(runtime::roundToInt32(1.5) == 2);
    CHECK(runtime::roundToInt32(2.5) == 2);
    CHECK(runtime::roundToInt32(-0.5) == 0);
    CHECK(runtime::roundToInt32(-1.5) == -2);
    CHECK(runtime::roundToInt32(2.4999) == 2);
    CHECK(runtime::roundToInt32(2.5001) == 3);
    CHECK(runtime::roundToInt16(-2.5) == -2);
}

TEST_CASE("a number that rounds out of the target's range is an overflow") {
    CHECK(runtime::roundToInt16(32767.49) == 32767);
    CHECK(runtime::roundToInt16(-32768.5) == -32768);
    CHECK(runtime::roundToInt32(2147483647.49) == 2147483647);
    CHECK(runtime::roundToInt32(-2147483648.5) == std::numeric_limits<std::int32_t>::min());
    CHECK(errorOf([] { runtime::roundToInt16(32767.5); }) == 6);
    CHECK(errorOf([] { runtime::roundToInt16(-32768.51); }) == 6);
    CHECK(errorOf([] { runtime::roundToInt32(2147483647.5); }) == 6);
    CHECK(errorOf([] { runtime::roundToInt32(-2147483649.0); }) == 6);
    CHECK(errorOf([] { runtime::roundToInt32(1e300); }) == 6);
    CHECK(errorOf([] { runtime::roundToInt32(std::nan("")); }) == 6);
}

TEST_CASE("a strict conversion takes one whole number with blanks around it") {
    CHECK(runtime::toInt16("0") == 0);
    CHECK(runtime::toInt16(" 2 ") == 2);
    CHECK(runtime::toInt16("-1") == -1);
    CHECK(runtime::toInt16("1.5") == 2);
    CHECK(runtime::toInt16("2.5") == 2);
    CHECK(runtime::toInt16("1e2") == 100);
    CHECK(runtime::toInt16("32767") == 32767);
    CHECK(runtime::toInt16("-32768") == -32768);
    CHECK(runtime::toInt32("2147483647") == 2147483647);
    CHECK(runtime::toInt32("-2147483648") == std::numeric_limits<std::int32_t>::min());
}

TEST_CASE("a text that is not one number is a type mismatch") {
    for (const char* text :
         {"", " ", "abc", "1a", "1 2", "a1", "1e", "0x1", "1,5", "-", ".", "inf", "1.2.3"}) {
        CHECK_MESSAGE(error16(text) == 13, text);
        CHECK_MESSAGE(error32(text) == 13, text);
    }
}

TEST_CASE("a number out of the range of the integer is an overflow") {
    CHECK(error16("32768") == 6);
    CHECK(error16("32767.5") == 6);
    CHECK(error16("-32769") == 6);
    CHECK(error32("2147483648") == 6);
    CHECK(error32("1e400") == 6);
    CHECK(error16("99999999999999999999") == 6);
}

TEST_CASE("numbers are written as the table says") {
    std::ifstream table(TEST_DATA "/numberformat.tsv");
    REQUIRE(table);
    std::string line;
    std::getline(table, line);
    int rows = 0;
    while (std::getline(table, line)) {
        std::istringstream fields(line);
        std::string value;
        std::string pattern;
        std::string expected;
        std::getline(fields, value, '\t');
        std::getline(fields, pattern, '\t');
        std::getline(fields, expected, '\t');
        const double number = std::strtod(value.c_str(), nullptr);
        const std::string text =
            pattern == "<general>" ? runtime::generalText(number) : runtime::formatNumber(number, pattern);
        CHECK_MESSAGE(text == expected, line);
        ++rows;
    }
    CHECK(rows == 119);
}

TEST_CASE("what is no finite number has a text of its own, under every pattern") {
    const double infinite = std::numeric_limits<double>::infinity();
    CHECK(runtime::generalText(-infinite) == "-1.#INF");
    CHECK(runtime::generalText(std::nan("")) == "-1.#IND");
    CHECK(runtime::formatNumber(infinite, "0.##") == "1.#INF");
    CHECK(runtime::formatNumber(infinite, "@") == "1.#INF");
}

TEST_CASE("a half in the 16th digit of a number is rounded away from zero") {
    CHECK(runtime::generalText(100000000000000.5) == "100000000000001");
    CHECK(runtime::generalText(-100000000000002.5) == "-100000000000003");
    CHECK(runtime::generalText(0.10000000000000048) == "0.1"); // rounded once, not by way of 16 digits
}

TEST_CASE("the pattern @ and patterns that are none give the general text") {
    for (const char* pattern : {"@", "", "0", "0.", "#.#", "0.########", "0.#x", "0.0", "00.#"})
        CHECK_MESSAGE(runtime::formatNumber(2, pattern) == "2", pattern);
    CHECK(runtime::formatNumber(2, "0.##") == "2.");
    CHECK(runtime::formatNumber(2.675, "0.##") == "2.68");
}

TEST_SUITE_END();
