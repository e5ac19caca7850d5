// The texts that the user sees in the chosen language: one numbered catalogue with a German and an English
// bank.
//
// A text is always fetched anew, by its id plus languageOffset; the English bank stands 10000 behind the
// German one.
#pragma once

#include <cstdint>
#include <string>

namespace store {

inline constexpr std::int32_t englishBank = 10000;

/// The text with this id, of either bank, in the code page in force. Error 326 if there is none.
std::string LoadResString(std::int32_t id);

} // namespace store
