// What the user reads in the console, in both languages.
#pragma once

#include <string>

namespace console {

// What fits in lines of 80 characters, English first.
void say(const std::wstring& english, const std::wstring& german);

} // namespace console
