// The error component: trace, parameters of every kind, a report with its dialog, the printer's lines.
#include "fuzz/targets/targets.h"

#include "desktop/desktop.h"
#include "errors/ErrPtnr.h"
#include "errors/printWrap.h"
#include "runtime/runtimeError.h"

#include <algorithm>
#include <cstring>

namespace fuzz {

namespace {

using runtime::ErrorNumber;

errors::Variant value(Reader& reader) {
    switch (reader.below(9)) {
    case 0:
        return errors::Empty{};
    case 1:
        return errors::Null{};
    case 2:
        return errors::Object{reader.text()};
    case 3:
        return reader.below(2) == 1;
    case 4:
        return static_cast<std::int32_t>(reader.below(256)) - 128;
    case 5: {
        const std::string bytes = reader.text();
        double number = 0;
        std::memcpy(&number, bytes.data(), std::min(bytes.size(), sizeof number));
        return number;
    }
    case 6: {
        const std::string bytes = reader.text();
        errors::Date date;
        std::memcpy(&date.days, bytes.data(), std::min(bytes.size(), sizeof date.days));
        return date;
    }
    case 7:
        return errors::ErrorValue{static_cast<std::int32_t>(reader.below(256))};
    default:
        return reader.text();
    }
}

void trace(errors::ErrPtnr& form, Reader& reader) {
    for (std::size_t count = reader.below(6); count > 0; --count) {
        std::string routine = reader.text();
        form.CallStack(routine);
        const std::string name = reader.text();
        const errors::Variant parameter = value(reader);
        try {
            form.CallStackParam(name, parameter);
        } catch (const runtime::RuntimeError& error) {
            expect(error.number == ErrorNumber::invalidCall &&
                       std::holds_alternative<errors::Date>(parameter),
                   "only a date's year can be wrong", name);
        }
    }
}

void report(Reader& reader) {
    errors::ErrPtnr form;
    trace(form, reader);
    form.SetProgInfo(reader.text());
    const std::size_t choice = reader.below(4);
    const auto bits = static_cast<std::uint8_t>(reader.below(256));
    const std::string module = reader.text();
    const std::string routine = reader.text();
    desktop::world().modalScripts = {[&](forms::Form&) {
        form.cmdContinue[choice].click();
        // The fourth is there only where it is asked for.
        form.cmdContinue[0].click();
    }};
    const std::int16_t chosen = form.OnError(module, routine, bits);
    expect(chosen >= 0 && chosen <= 3, "one of four ways to go on");
    desktop::world().files.clear();
}

void lines(std::string_view text) {
    constexpr std::size_t columns = 73;
    constexpr std::size_t indent = 20;
    const std::size_t most = text.size();
    for (const std::string& line : errors::printLines(text)) {
        const std::size_t begin = line.find_first_not_of(' ');
        const std::size_t words = begin == std::string::npos ? 0 : line.size() - begin;
        expect(line.size() <= columns + indent || words <= most, "a line is too long for one word only",
               line);
    }
}

} // namespace

void errorReport(std::string_view input) {
    Reader reader(input);
    const std::size_t what = reader.below(16);
    if (what == 0)
        report(reader);
    else if (what < 8)
        lines(reader.rest());
    else {
        const std::string text(reader.rest());
        const std::size_t end = text.find('\0');
        expect(errors::ErrPtnr::LPSTRToVBString(text) ==
                   (end == std::string::npos ? "" : text.substr(0, end)),
               "a text ends at its first NUL, and is none without", text);
        static errors::ErrPtnr form;
        try {
            trace(form, reader);
        } catch (const runtime::RuntimeError& error) {
            expect(error.number == ErrorNumber::subscriptOutOfRange, "a trace without a routine", text);
        }
        if (what == 8)
            form.unload();
    }
}

} // namespace fuzz
