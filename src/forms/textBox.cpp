#include "forms/textBox.h"

#include "forms/event.h"
#include "runtime/runtimeError.h"

#include <algorithm>

namespace forms {

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

void requireNotNegative(int value) {
    if (value < 0)
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
}

} // namespace

void TextBox::setText(std::string_view text) {
    selStart_ = 0;
    selLength_ = 0;
    if (text == text_) {
        tellPeer(Property::selection);
        return;
    }
    text_ = std::string(text);
    tellPeer(Property::text);
    raise(onChange);
}

void TextBox::setSelStart(int start) {
    requireNotNegative(start);
    selected(start, 0);
    tellPeer(Property::selection);
}

void TextBox::setSelLength(int length) {
    requireNotNegative(length);
    selected(selStart_, length);
    tellPeer(Property::selection);
}

int TextBox::keyPressed(int keyAscii) {
    raise(onKeyPress, keyAscii);
    return keyAscii;
}

void TextBox::edited(std::string_view text) {
    edited(text, selStart_, selLength_);
}

void TextBox::edited(std::string_view text, int start, int length) {
    const bool changed = text != text_;
    if (changed)
        text_ = std::string(text);
    selected(start, length);
    if (changed)
        raise(onChange);
}

void TextBox::selected(int start, int length) {
    const int end = static_cast<int>(text_.size());
    selStart_ = std::clamp(start, 0, end);
    selLength_ = std::clamp(length, 0, end - selStart_);
}

void TextBox::typeCharacter(char character) {
    if (!acceptsInput())
        return;
    const int keyAscii = static_cast<unsigned char>(character);
    const int keyCode = keyCodeOf(static_cast<unsigned char>(character));
    const int shift = character >= 'A' && character <= 'Z' ? 1 : 0;
    raise(onKeyDown, keyCode, shift);
    typed(keyPressed(keyAscii));
    raise(onKeyUp, keyCode, shift);
}

void TextBox::typed(int keyAscii) {
    std::string text = text_;
    int start = selStart_;
    if (keyAscii == backspace) {
        const int length = selLength_ == 0 && start > 0 ? 1 : selLength_;
        if (selLength_ == 0 && start > 0)
            --start;
        text.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
    } else if (keyAscii >= space) {
        text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(selLength_), 1,
                     static_cast<char>(keyAscii));
        if (maxLength > 0 && text.size() > static_cast<std::size_t>(maxLength))
            return;
        ++start;
    } else {
        return;
    }
    const bool changed = text != text_;
    text_ = std::move(text);
    selected(start, 0);
    if (!changed)
        return;
    tellPeer(Property::text);
    tellPeer(Property::selection);
    raise(onChange);
}

} // namespace forms
