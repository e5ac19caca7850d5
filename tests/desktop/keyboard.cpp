#include "desktop/keyboard.h"

#include "forms/event.h"
#include "forms/textBox.h"

#include <string>

namespace desktop {

namespace {

constexpr int backspace = 8;
constexpr int space = 32;

/// The platform's virtual key code of the key that types a character; 0 for characters without a key of their
/// own.
int keyCodeOf(unsigned char character) {
    if (character >= 'a' && character <= 'z')
        return character - 'a' + 'A';
    if (character <= ' ' || (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z'))
        return character;
    switch (character) {
    case '+':
        return 0xBB;
    case ',':
        return 0xBC;
    case '-':
        return 0xBD;
    case '.':
        return 0xBE;
    default:
        return 0;
    }
}

/// What an edit field makes of a character: it goes to the selection, unless the field is full.
void edit(forms::TextBox& box, int keyAscii) {
    std::string text = box.text();
    int start = box.selStart();
    int length = box.selLength();
    if (keyAscii == backspace) {
        if (length == 0 && start > 0) {
            --start;
            length = 1;
        }
        text.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
    } else if (keyAscii >= space) {
        text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(length), 1,
                     static_cast<char>(keyAscii));
        if (box.maxLength > 0 && text.size() > static_cast<std::size_t>(box.maxLength))
            return;
        ++start;
    } else {
        return;
    }
    box.edited(text, start, 0);
}

} // namespace

void typeInto(forms::TextBox& box, std::string_view text) {
    for (const char character : text) {
        if (!box.acceptsInput())
            return;
        const int keyCode = keyCodeOf(static_cast<unsigned char>(character));
        const int shift = character >= 'A' && character <= 'Z' ? 1 : 0;
        forms::raise(box.onKeyDown, keyCode, shift);
        edit(box, box.keyPressed(static_cast<unsigned char>(character)));
        forms::raise(box.onKeyUp, keyCode, shift);
    }
}

} // namespace desktop
