// How lines of a protocol end, wherever it goes.
#pragma once

namespace errors {

inline constexpr const char* lineEnd = "\r\n";

} // namespace errors
