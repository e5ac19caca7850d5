// Path tokens: stored as they are, expanded at the moment of use.
#pragma once

#include <string>
#include <vector>

namespace store {

/// What "{eaglepath}" stands for. Kept: no routine assigns it, so the token drops out of a text.
inline std::string eagleFolder;

/// The text with "{kestrelpath}" and "{eaglepath}" replaced. A token that is not all lower case stays.
std::string expandTokens(const std::string& text);

/// A part of a text with tokens.
struct PathPiece {
    std::string text;
    bool fromToken = false; ///< what a token stands for
};

/// The same text in pieces, cut where a token stood.
std::vector<PathPiece> expandedPieces(const std::string& text);

} // namespace store
