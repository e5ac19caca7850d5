// The settings file: one text file in the classic INI format beside the program. These three routines are the
// only way to it, and nothing of it is cached: a value is read at the moment of use.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace store {

/// Sections and keys, in the spelling of their readers; lookups ignore case.
namespace section {
inline constexpr const char* global = "global";
inline constexpr const char* unit = "Unit";
inline constexpr const char* toolbar = "toolbar";
inline constexpr const char* toolbarWritten = "Toolbar"; ///< Kept: the same section as its writers spell it
} // namespace section

namespace key {
inline constexpr const char* language = "language";
inline constexpr const char* mend = "mend";
inline constexpr const char* visible = "Visible";
inline constexpr const char* leftUnit = "LeftUnit";
inline constexpr const char* rightUnit = "RightUnit";
inline constexpr const char* leftAccuracy = "LeftAccuracy";
inline constexpr const char* rightAccuracy = "RightAccuracy";
inline constexpr const char* autoEAGLE = "autoEAGLE";
inline constexpr const char* autoToolbar = "autoToolbar";
inline constexpr const char* winEAGLE = "winEAGLE";
inline constexpr const char* oneEAGLE = "oneEAGLE";
inline constexpr const char* eaglePath = "EAGLEpath";
inline constexpr const char* eagleFile = "EAGLEfile";
inline constexpr const char* lastBoard = "lastBoard";
inline constexpr const char* lastSCH = "lastSCH";
inline constexpr const char* lastLBR = "lastLBR";
inline constexpr const char* lastLbrWritten = "lastLbr"; ///< Kept: the same key as its writer spells it
} // namespace key

/// Name of the routine last entered, where a routine records itself; nothing reads it.
inline std::string currentRoutine;

/// Writes one key. Gives the low half of the platform's result, non-zero on success.
std::int16_t setini(const std::string& section, const std::string& key, const std::string& value);

/// To be called before the first and behind the last of several writes that belong together. What the file
/// held before stands beside it meanwhile, as kestrel.sav, and from then on as kestrel.bak: the whole old
/// settings, if the program does not come to the end of its writes. A kestrel.sav that is there already is
/// of a run that did not come to that end, and worth more than what it has left in the settings file: it is
/// kept. Once this run has come to the end, one that could not get its last name is made anew. Where the
/// folder refuses, nothing is kept.
///
/// The one gap: a run that is killed behind its last write and before the new name leaves whole settings
/// under an older kestrel.sav. If the next run is killed in its OK as well, those older ones are all that is
/// whole.
void keepSettings();
void settingsWritten();

/// Bytes of a value that come back whole.
inline constexpr std::size_t longestValue = 254;

/// Value of a key, at most so long; empty if it is absent or empty.
std::string getini(const std::string& section, const std::string& key);

/// Removes a section. Result as of setini.
std::int16_t delini(const std::string& section);

/// The value read as a number and compared with 0.
bool getFlag(const std::string& section, const std::string& key);

/// The value read as a number and rounded. Error 6 out of the 32-bit range.
std::int32_t getNumber(const std::string& section, const std::string& key);

/// The value, or `otherwise` if it is absent or empty.
std::string getText(const std::string& section, const std::string& key, const std::string& otherwise);

} // namespace store
