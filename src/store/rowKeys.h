// The keys of a row in the settings file: its number with one of these words behind it.
#pragma once

namespace store::word {

inline constexpr const char* name = "name";
inline constexpr const char* path = "path";
inline constexpr const char* tooltip = "tooltip";
inline constexpr const char* param = "param";
inline constexpr const char* icon = "icon";
inline constexpr const char* dialog = "dialog";
inline constexpr const char* type = "type";

} // namespace store::word
