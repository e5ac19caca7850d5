// The texts that the user sees in the chosen language: one numbered catalogue with a German and an English
// bank.
//
// A text is always fetched anew, by its id plus core::languageOffset; the English bank stands 10000 behind
// the German one.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace store {

inline constexpr std::int32_t englishBank = 10000;

struct CatalogueRow {
    std::int32_t id; ///< of the German text
    const char* german;
    const char* english;
};

/// The whole catalogue, by rising ids. Texts are in the Western Windows code page.
std::span<const CatalogueRow> catalogue();

/// The text with this id, of either bank. Error 326 if there is none.
std::string LoadResString(std::int32_t id);

} // namespace store
