// Two steps: the text is cut into tokens, in which brackets that have no twin are found; then modifiers and
// groups are applied. No recursion, so that no depth of nesting can exhaust the stack.
#include "runtime/keyText.h"

#include "runtime/characters.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

namespace runtime {

using platform::Key;
using platform::KeyStroke;

namespace {

constexpr std::uint32_t greatestCount = 32767;

struct KeyName {
    std::string_view name;
    Key key;
};

constexpr KeyName keyNames[] = {
    {"BACKSPACE", Key::backspace},
    {"BS", Key::backspace},
    {"BKSP", Key::backspace},
    {"BREAK", Key::breakKey},
    {"CAPSLOCK", Key::capsLock},
    {"DELETE", Key::deleteKey},
    {"DEL", Key::deleteKey},
    {"DOWN", Key::down},
    {"END", Key::end},
    {"ENTER", Key::enter},
    {"ESC", Key::escape},
    {"HELP", Key::help},
    {"HOME", Key::home},
    {"INSERT", Key::insert},
    {"INS", Key::insert},
    {"LEFT", Key::left},
    {"NUMLOCK", Key::numLock},
    {"PGDN", Key::pageDown},
    {"PGUP", Key::pageUp},
    {"PRTSC", Key::printScreen},
    {"RIGHT", Key::right},
    {"SCROLLLOCK", Key::scrollLock},
    {"TAB", Key::tab},
    {"UP", Key::up},
};

constexpr std::string_view functionKeys[] = {"F1", "F2",  "F3",  "F4",  "F5",  "F6",  "F7",  "F8",
                                             "F9", "F10", "F11", "F12", "F13", "F14", "F15", "F16"};

constexpr char32_t upperCase(char32_t character) {
    return character >= 'a' && character <= 'z' ? character - 0x20 : character;
}

bool sameName(std::u32string_view text, std::string_view name) {
    return std::ranges::equal(text, name, {}, upperCase);
}

std::optional<Key> namedKey(std::u32string_view text) {
    for (const KeyName& known : keyNames)
        if (sameName(text, known.name))
            return known.key;
    for (std::size_t number = 0; number < std::size(functionKeys); ++number)
        if (sameName(text, functionKeys[number]))
            return static_cast<Key>(static_cast<std::size_t>(Key::f1) + number);
    return std::nullopt;
}

enum class Kind {
    key,      ///< a stroke, `count` times
    literal,  ///< a character that could not be read as notation
    modifier, ///< + ^ or %
    open,     ///< ( and ), with their twin
    close,
    verbatim, ///< a character that nothing is applied to
};

struct Token {
    Kind kind;
    KeyStroke stroke; ///< the character itself for anything but a named key
    std::uint32_t count = 1;
};

Token characterToken(Kind kind, char32_t character) {
    return {kind, {.character = character}};
}

/// Reads what stands between braces: a name or a single character, behind it blanks and a count or nothing.
std::optional<Token> bracedKey(std::u32string_view content) {
    Token token{Kind::key, {}};
    std::u32string_view name = content;
    // The first character is never a separator: "{  3}" is the blank, three times.
    const std::size_t blank = content.find(U' ', 1);
    if (blank != std::u32string_view::npos) {
        name = content.substr(0, blank);
        std::u32string_view digits = content.substr(blank);
        digits.remove_prefix(std::min(digits.find_first_not_of(U' '), digits.size()));
        if (digits.empty() || digits.find_first_not_of(U"0123456789") != std::u32string_view::npos)
            return std::nullopt;
        token.count = 0;
        for (const char32_t digit : digits)
            token.count =
                std::min(greatestCount, token.count * 10 + static_cast<std::uint32_t>(digit - U'0'));
    }
    if (name.size() == 1) {
        token.stroke.character = name.front();
        return token;
    }
    const std::optional<Key> key = namedKey(name);
    if (!key)
        return std::nullopt;
    token.stroke.key = *key;
    return token;
}

void appendLiteral(std::vector<Token>& tokens, std::u32string_view text) {
    for (const char32_t character : text)
        tokens.push_back(characterToken(Kind::literal, character));
}

/// Reads from a brace on and gives the number of characters read.
std::size_t readBrace(std::vector<Token>& tokens, std::u32string_view text) {
    // The first character inside may be a brace itself.
    const std::size_t close = text.find(U'}', 2);
    if (close != std::u32string_view::npos) {
        const std::u32string_view content = text.substr(1, close - 1);
        if (const std::optional<Token> token = bracedKey(content)) {
            tokens.push_back(*token);
            return close + 1;
        }
        if (content.find_first_of(U"{}") == std::u32string_view::npos) {
            appendLiteral(tokens, text.substr(0, close + 1));
            return close + 1;
        }
    }
    appendLiteral(tokens, text.substr(0, 1));
    return 1;
}

std::vector<Token> tokenise(std::u32string_view text) {
    std::vector<Token> tokens;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = text[at];
        if (character == '{') {
            at += readBrace(tokens, text.substr(at));
            continue;
        }
        ++at;
        switch (character) {
        case '+':
        case '^':
        case '%':
            tokens.push_back(characterToken(Kind::modifier, character));
            break;
        case '(':
            tokens.push_back(characterToken(Kind::open, character));
            break;
        case ')':
            tokens.push_back(characterToken(Kind::close, character));
            break;
        case '~':
            tokens.push_back({Kind::key, {.key = Key::enter}});
            break;
        case '}':
            tokens.push_back(characterToken(Kind::literal, character));
            break;
        default:
            tokens.push_back(characterToken(Kind::key, character));
        }
    }
    return tokens;
}

/// Brackets without a twin stand for themselves.
void matchBrackets(std::vector<Token>& tokens) {
    std::vector<Token*> open;
    for (Token& token : tokens) {
        if (token.kind == Kind::open)
            open.push_back(&token);
        if (token.kind != Kind::close)
            continue;
        if (open.empty())
            token.kind = Kind::literal;
        else
            open.pop_back();
    }
    for (Token* token : open)
        token->kind = Kind::literal;
}

KeyStroke with(KeyStroke stroke, const KeyStroke& modifiers) {
    stroke.shift |= modifiers.shift;
    stroke.control |= modifiers.control;
    stroke.alt |= modifiers.alt;
    return stroke;
}

void addModifier(KeyStroke& modifiers, char32_t mark) {
    modifiers.shift |= mark == '+';
    modifiers.control |= mark == '^';
    modifiers.alt |= mark == '%';
}

/// Applies modifiers and groups.
std::vector<KeyStroke> strokesOf(std::vector<Token> tokens) {
    matchBrackets(tokens);
    std::vector<KeyStroke> strokes;
    std::vector<KeyStroke> groups = {{}}; // modifiers of the groups that are open, the whole text the first
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        // Modifiers in a row belong to what follows them; if that is no key and no group, they stand for
        // themselves.
        const std::size_t first = at;
        KeyStroke modifiers = groups.back();
        for (; at < tokens.size() && tokens[at].kind == Kind::modifier; ++at)
            addModifier(modifiers, tokens[at].stroke.character);
        const bool applies =
            at < tokens.size() && (tokens[at].kind == Kind::key || tokens[at].kind == Kind::open);
        if (!applies) {
            for (std::size_t mark = first; mark < at; ++mark)
                strokes.push_back(with(tokens[mark].stroke, groups.back()));
            modifiers = groups.back();
        }
        if (at == tokens.size())
            break;
        const Token& token = tokens[at];
        if (token.kind == Kind::open)
            groups.push_back(modifiers);
        else if (token.kind == Kind::close)
            groups.pop_back();
        else if (token.kind == Kind::verbatim)
            strokes.push_back(token.stroke);
        else
            strokes.insert(strokes.end(), token.count, with(token.stroke, modifiers));
    }
    return strokes;
}

} // namespace

std::vector<KeyStroke> parseKeyText(std::string_view text) {
    return strokesOf(tokenise(toUtf32(text)));
}

std::vector<KeyStroke> parseKeyPieces(std::span<const KeyPiece> pieces) {
    std::vector<Token> tokens;
    for (const KeyPiece& piece : pieces) {
        const std::u32string text = toUtf32(piece.text);
        if (piece.verbatim) {
            for (const char32_t character : text)
                tokens.push_back(characterToken(Kind::verbatim, character));
        } else {
            const std::vector<Token> read = tokenise(text);
            tokens.insert(tokens.end(), read.begin(), read.end());
        }
    }
    return strokesOf(std::move(tokens));
}

} // namespace runtime
