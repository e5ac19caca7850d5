// The notation in which key strokes are written: parsing only. Injecting them is the platform's.
#pragma once

#include "platform/keyStroke.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace runtime {

/// Reads a text in the notation. What is not well formed stands for itself: nothing is lost, nothing fails.
/// Repeat counts are held to 32767.
std::vector<platform::KeyStroke> parseKeyText(std::string_view text);

/// A part of what is typed.
struct KeyPiece {
    std::string text;
    bool verbatim = false; ///< typed as it stands, without modifiers, even within a group
};

/// Reads pieces that follow each other as one text. Only brackets find their twins beyond their own piece.
std::vector<platform::KeyStroke> parseKeyPieces(std::span<const KeyPiece> pieces);

} // namespace runtime
