#include "desktop/keyboard.h"

#include "forms/event.h"
#include "forms/textBox.h"
#include "runtime/characters.h"

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
    const auto bytes = [&text](int characters) {
        return runtime::sizeOfCharacters(text, static_cast<std::size_t>(characters));
    };
    if (keyAscii == backspace && length == 0 && start > 0) {
        --start;
        length = 1;
    }
    const std::size_t from = bytes(start);
    const std::size_t size = bytes(start + length) - from;
    if (keyAscii == backspace) {
        text.erase(from, size);
    } else if (keyAscii >= space || keyAscii < 0) { // below 0: four bytes
        text.replace(from, size, runtime::characterOfCode(keyAscii));
        if (box.maxLength > 0 && runtime::characterCount(text) > static_cast<std::size_t>(box.maxLength))
            return;
        ++start;
    } else {
        return;
    }
    box.edited(text, start, 0);
}

} // namespace

void typeInto(forms::TextBox& box, std::string_view text) {
    for (; !text.empty(); text.remove_prefix(runtime::characterSize(text))) {
        if (!box.acceptsInput())
            return;
        const std::string_view character = text.substr(0, runtime::characterSize(text));
        const char first = character.front();
        const int keyCode = keyCodeOf(static_cast<unsigned char>(first));
        const int shift = first >= 'A' && first <= 'Z' ? 1 : 0;
        forms::raise(box.onKeyDown, keyCode, shift);
        edit(box, box.keyPressed(runtime::characterCode(character)));
        forms::raise(box.onKeyUp, keyCode, shift);
    }
}

} // namespace desktop
