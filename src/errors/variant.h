// A value of any kind, as far as the call trace tells kinds apart.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace errors {

struct Empty {};
struct Null {};
struct Array {};
/// An object reference that is set, and one to nothing.
struct Object {
    std::string typeName;
};
struct Nothing {};
/// Days since 30 December 1899, with the time of day as the fraction.
struct Date {
    double days = 0;
};
struct ErrorValue {
    std::int32_t number = 0;
};

using Variant = std::variant<Empty, Null, Array, Object, Nothing, bool, std::int32_t, double, std::string,
                             Date, ErrorValue>;

/// What the trace shows of a value: its conversion to a string, or its kind in brackets. Error 5 for a date
/// outside the years 100 to 9999.
std::string valueText(const Variant& v);

} // namespace errors
