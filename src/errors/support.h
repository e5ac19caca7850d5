// Where users turn to with a report. Placeholders: whoever gives the program away puts in addresses of their
// own, and nothing else has to be changed.
#pragma once

#include "runtime/text.h"

#include <string>
#include <string_view>

namespace errors {

/// As a mail is addressed, without "mailto:".
inline constexpr const char* supportMail = "support@kestrel.example";
/// Opens by itself in the system's browser: with "http://" or "https://" in front.
inline constexpr const char* supportWeb = "https://kestrel.example/support";

/// What the shell opens to write to an address.
inline std::string mailTarget(std::string_view address) {
    return std::string("mailto:").append(runtime::trim(address));
}

} // namespace errors
