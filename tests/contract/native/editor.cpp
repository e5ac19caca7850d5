#include "contract/native/editor.h"

#include "runtime/characters.h"
#include "runtime/text.h"

#include <algorithm>
#include <stdexcept>

namespace contract {

namespace {

/// Lines end in one character here: a caret never stands inside a line end.
struct Editor {
    std::u32string text;
    std::size_t anchor = 0; ///< the other end of the selection
    std::size_t caret = 0;

    void replaceSelection(std::u32string_view with) {
        const auto [from, to] = std::minmax(anchor, caret);
        text.replace(from, to - from, with);
        anchor = caret = from + with.size();
    }

    void moveTo(std::size_t place, bool select) {
        caret = place;
        if (!select)
            anchor = place;
    }

    std::size_t lineStart() const {
        const std::size_t before = caret == 0 ? std::u32string::npos : text.rfind(U'\n', caret - 1);
        return before == std::u32string::npos ? 0 : before + 1;
    }

    std::size_t lineEnd() const { return std::min(text.find(U'\n', caret), text.size()); }

    void take(const platform::KeyStroke& stroke) {
        const std::size_t before = caret == 0 ? 0 : caret - 1;
        const std::size_t behind = std::min(caret + 1, text.size());
        switch (stroke.key) {
        case platform::Key::none:
            type(stroke);
            break;
        case platform::Key::enter:
            replaceSelection(U"\n");
            break;
        case platform::Key::backspace:
            if (anchor == caret)
                anchor = before;
            replaceSelection({});
            break;
        case platform::Key::deleteKey:
            if (anchor == caret)
                anchor = behind;
            replaceSelection({});
            break;
        case platform::Key::left:
            moveTo(before, stroke.shift);
            break;
        case platform::Key::right:
            moveTo(behind, stroke.shift);
            break;
        case platform::Key::home:
            moveTo(stroke.control ? 0 : lineStart(), stroke.shift);
            break;
        case platform::Key::end:
            moveTo(stroke.control ? text.size() : lineEnd(), stroke.shift);
            break;
        default:
            throw std::logic_error("the edit field does not know this key");
        }
    }

    void type(const platform::KeyStroke& stroke) {
        if (stroke.control || stroke.alt)
            throw std::logic_error("the edit field does not know this shortcut");
        char32_t character = stroke.character;
        if (stroke.shift && character >= 'a' && character <= 'z')
            character -= 0x20;
        replaceSelection({&character, 1});
    }
};

} // namespace

std::string textAfter(std::span<const platform::KeyStroke> strokes) {
    Editor editor;
    for (const platform::KeyStroke& stroke : strokes)
        editor.take(stroke);
    return runtime::replaceAll(runtime::fromUtf32(editor.text), "\n", "\r\n");
}

} // namespace contract
