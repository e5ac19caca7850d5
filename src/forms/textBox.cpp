#include "forms/textBox.h"

#include "forms/event.h"
#include "runtime/characters.h"
#include "runtime/runtimeError.h"

#include <algorithm>

namespace forms {

namespace {

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
    const int end = static_cast<int>(runtime::characterCount(text_));
    selStart_ = std::clamp(start, 0, end);
    selLength_ = std::clamp(length, 0, end - selStart_);
}

} // namespace forms
