#include "errors/variant.h"

#include "platform/clock.h"
#include "runtime/numbers.h"

#include <cmath>

namespace errors {

namespace {

/// One overload for each kind, so that a new kind does not compile without its text.
struct Text {
    std::string operator()(const Array& /*v*/) const { return "[ARRAY]"; }
    std::string operator()(const Null& /*v*/) const { return "[NULL]"; }
    std::string operator()(const Empty& /*v*/) const { return "[EMPTY]"; }
    std::string operator()(const Object& v) const { return "[OBJECT:" + v.typeName + "]"; }
    std::string operator()(const Nothing& /*v*/) const { return "[NOTHING]"; }
    std::string operator()(bool v) const { return v ? "True" : "False"; }
    std::string operator()(std::int32_t v) const { return std::to_string(v); }
    std::string operator()(double v) const { return runtime::generalText(v); }
    std::string operator()(const std::string& v) const { return v; }
    std::string operator()(const ErrorValue& v) const { return "Error " + std::to_string(v.number); }

    /// Midnight is left out, and so is the day from which days are counted.
    std::string operator()(const Date& v) const {
        const double day = std::trunc(v.days);
        if (day == 0)
            return platform::timeText(v.days);
        if (v.days == day)
            return platform::dateText(v.days);
        return platform::dateText(v.days) + " " + platform::timeText(v.days);
    }
};

} // namespace

std::string valueText(const Variant& v) {
    return std::visit(Text{}, v);
}

} // namespace errors
