// Path tokens: stored as they are, expanded at the moment of use.
#pragma once

#include <string>

namespace store {

/// What "{eaglepath}" stands for. Kept: no routine assigns it, so the token drops out of a text.
inline std::string eagleFolder;

/// The text with "{kestrelpath}" and "{eaglepath}" replaced. A token that is not all lower case stays.
std::string expandTokens(const std::string& text);

} // namespace store
