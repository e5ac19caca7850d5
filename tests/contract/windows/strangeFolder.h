// A folder that the code page cannot express, and how its tests are called up in it.
#pragma once

namespace contract {

/// Environment variable: volumes give no short names.
inline constexpr const char* noShortNames = "KESTREL_NO_SHORT_NAMES";

} // namespace contract
