// Texts of the code page as the system's wide calls take them, and back.
#pragma once

#include "platform/codePage.h"

#include <string>
#include <string_view>

namespace win32 {

inline std::wstring toWide(std::string_view text) {
    const std::u16string units = platform::toUtf16(text);
    return {units.begin(), units.end()};
}

inline std::string toText(std::wstring_view wide) {
    return platform::toAnsi(std::u16string(wide.begin(), wide.end()));
}

} // namespace win32
