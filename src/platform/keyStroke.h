// Key strokes as values: what is typed, before any keyboard has it.
#pragma once

#include <cstdint>

namespace platform {

/// Named keys; the numbers are the platform's virtual key codes. `none` stands for a plain character.
enum class Key : std::uint16_t {
    none = 0x00,
    breakKey = 0x03,
    backspace = 0x08,
    tab = 0x09,
    enter = 0x0D,
    capsLock = 0x14,
    escape = 0x1B,
    pageUp = 0x21,
    pageDown = 0x22,
    end = 0x23,
    home = 0x24,
    left = 0x25,
    up = 0x26,
    right = 0x27,
    down = 0x28,
    printScreen = 0x2C,
    insert = 0x2D,
    deleteKey = 0x2E,
    help = 0x2F,
    f1 = 0x70, // f2 to f16 follow
    numLock = 0x90,
    scrollLock = 0x91,
};

/// One key stroke: a named key, or a character, under modifiers.
struct KeyStroke {
    Key key = Key::none;
    char32_t character = 0; ///< Unicode; only if key is none
    bool shift = false;
    bool control = false;
    bool alt = false;

    bool operator==(const KeyStroke&) const = default;
};

} // namespace platform
