// The call trace of ErrPtnr.
#include "errors/ErrPtnr.h"

#include "platform/clock.h"
#include "runtime/runtimeError.h"

namespace errors {

void ErrPtnr::insertEntry(std::string_view line) {
    constexpr std::size_t most = 40;
    callStackEntries.emplace_front(line);
    if (callStackEntries.size() > most)
        callStackEntries.pop_back();
}

void ErrPtnr::CallStack(std::string& A) {
    load();
    A = platform::timeText(platform::now()) + " " + A;
    insertEntry(A);
}

void ErrPtnr::CallStackParam(std::string_view ParamName, const Variant& v) {
    load();
    const std::string line = "\t" + std::string(ParamName) + ":\t" + valueText(v);
    // Kept: a parameter goes before the first entry, and a collection without one has no such place. The
    // runtime calls that a subscript out of range.
    if (callStackEntries.empty())
        throw runtime::RuntimeError(runtime::ErrorNumber::subscriptOutOfRange);
    insertEntry(line);
}

std::string ErrPtnr::LPSTRToVBString(std::string_view s) {
    const std::size_t end = s.find('\0');
    return end == std::string_view::npos ? std::string() : std::string(s.substr(0, end));
}

} // namespace errors
