// What the test program and the process that plays the other program say to each other: one line an order,
// one line the answer. Words are parted by blanks; texts and numbers of any kind travel as words.
#pragma once

#include <cstdint>
#include <sstream>
#include <string>

namespace contract {

/// Argument that starts contract-tests.exe as the other program.
inline constexpr const char* otherProgramArgument = "--other-program";

/// A text as a word of hexadecimal digits, so that it may hold anything; never empty.
inline std::string asWord(const std::string& text) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string word = "x";
    for (const char character : text) {
        word += digits[static_cast<unsigned char>(character) >> 4];
        word += digits[static_cast<unsigned char>(character) & 0xF];
    }
    return word;
}

inline std::string fromWord(const std::string& word) {
    std::string text;
    for (std::size_t at = 1; at + 1 < word.size(); at += 2)
        text += static_cast<char>(std::stoi(word.substr(at, 2), nullptr, 16));
    return text;
}

} // namespace contract
