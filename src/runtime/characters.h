// The characters of a text of the ANSI code page: one may be several bytes, and a byte that looks like a
// backslash, a brace or a bar may be the second of another character. Whatever is looked for in a text that
// users write is looked for here.
//
// Positions and sizes are in bytes, from 0, as std::string has them; only counts are in characters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace runtime {

/// Whether each byte is a character in the code page in force.
bool oneByteEach();

/// Bytes of the character that a text begins with. 1 for what begins none; 0 for the empty text.
std::size_t characterSize(std::string_view text);

/// Number of characters in a text.
std::size_t characterCount(std::string_view text);

/// Bytes of the first `count` characters; of all of them if there are no more.
std::size_t sizeOfCharacters(std::string_view text, std::size_t count);

/// The first `size` bytes of a text, less the beginning of a character that does not fit.
std::string_view cutToSize(std::string_view text, std::size_t size);

/// A text that has been cut without regard to characters, less the beginning of one at its end.
std::string_view withoutTornEnd(std::string_view text);

/// Position of the first, or last, place at which `what` stands, from its first character on; npos if there
/// is none. The first is looked for from position `from` on, where a character begins.
std::size_t findText(std::string_view text, std::string_view what, std::size_t from = 0);
std::size_t findLastText(std::string_view text, std::string_view what);

/// Whether the last character is this one.
bool endsInCharacter(std::string_view text, std::string_view character);

/// The code of a character: its bytes as one number, the first one highest, so that one of four bytes is
/// below 0. And back.
int characterCode(std::string_view character);
std::string characterOfCode(int code);

/// The same text in Unicode, a character each, and back.
std::u32string toUtf32(std::string_view text);
std::string fromUtf32(std::u32string_view text);

} // namespace runtime
