#include "runtime/keyText.h"

#include "codePages.h"
#include "runtime/characters.h"

#include <doctest/doctest.h>

#include <string>

using platform::Key;
using platform::KeyStroke;
using runtime::parseKeyText;

namespace {

/// The strokes in a notation of the test's own: modifiers as s- c- a-, named keys as their code in
/// hexadecimal between angle brackets, characters as they are.
std::string written(const std::vector<KeyStroke>& strokes) {
    std::string text;
    for (const KeyStroke& stroke : strokes) {
        text += stroke.shift ? "s-" : "";
        text += stroke.control ? "c-" : "";
        text += stroke.alt ? "a-" : "";
        if (stroke.key == Key::none) {
            text += runtime::fromUtf32({&stroke.character, 1});
        } else {
            constexpr char digits[] = "0123456789ABCDEF";
            const auto code = static_cast<unsigned>(stroke.key);
            text += {'<', digits[code / 16], digits[code % 16], '>'};
        }
    }
    return text;
}

std::string keys(std::string_view text) {
    return written(parseKeyText(text));
}

} // namespace

TEST_SUITE_BEGIN("runtime/keyText");

TEST_CASE("a command is its characters and the Enter key") {
    CHECK(keys("run ulp abc{ENTER}") == "run ulp abc<0D>");
    CHECK(keys("") == "");
    CHECK(keys(western("\xE4\xF6\xFC\xDF\x80@\\|<>\"';:.*,-_#&/?=!$")) ==
          western("\xE4\xF6\xFC\xDF\x80@\\|<>\"';:.*,-_#&/?=!$"));
}

TEST_CASE("every key name is known in any case") {
    struct Row {
        const char* name;
        Key key;
    };
    const Row rows[] = {
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
    for (const Row& row : rows) {
        const std::vector<KeyStroke> expected = {{.key = row.key}};
        std::string lower = row.name;
        for (char& character : lower)
            character = static_cast<char>(character + 0x20);
        std::string mixed = lower;
        mixed[0] = row.name[0];
        CHECK_MESSAGE(parseKeyText("{" + std::string(row.name) + "}") == expected, row.name);
        CHECK_MESSAGE(parseKeyText("{" + lower + "}") == expected, row.name);
        CHECK_MESSAGE(parseKeyText("{" + mixed + "}") == expected, row.name);
    }
}

TEST_CASE("the function keys go from F1 to F16") {
    for (int number = 1; number <= 16; ++number) {
        const std::vector<KeyStroke> expected = {{.key = static_cast<Key>(0x6F + number)}};
        CHECK(parseKeyText("{F" + std::to_string(number) + "}") == expected);
        CHECK(parseKeyText("{f" + std::to_string(number) + "}") == expected);
    }
    CHECK(keys("{F0}") == "{F0}");
    CHECK(keys("{F17}") == "{F17}");
    CHECK(keys("{F01}") == "{F01}");
    CHECK(keys("{F}") == "F");
}

TEST_CASE("a tilde is Enter") {
    CHECK(keys("a~b") == "a<0D>b");
    CHECK(keys("+~") == "s-<0D>");
}

TEST_CASE("characters with a meaning stand for themselves between braces") {
    CHECK(keys("{+}{^}{%}{~}{(}{)}{[}{]}{{}{}}") == "+^%~()[]{}");
    CHECK(keys("{a}") == "a");
    CHECK(keys("{ }") == " ");
}

TEST_CASE("square brackets are typed") {
    CHECK(keys("[a]") == "[a]");
    CHECK(keys("+[") == "s-[");
}

TEST_CASE("a modifier applies to the next key alone") {
    CHECK(keys("+ab") == "s-ab");
    CHECK(keys("^a") == "c-a");
    CHECK(keys("%a") == "a-a");
    CHECK(keys("+^%a") == "s-c-a-a");
    CHECK(keys("++a") == "s-a");
    CHECK(keys("^{F4}x") == "c-<73>x");
    CHECK(keys("%{+}") == "a-+");
    CHECK(keys("+ a") == "s- a");
}

TEST_CASE("a modifier applies to a whole group") {
    CHECK(keys("+(ab)c") == "s-as-bc");
    CHECK(keys("+^(a{TAB})") == "s-c-as-c-<09>");
    CHECK(keys("+()a") == "a");
}

TEST_CASE("groups nest and add their modifiers") {
    CHECK(keys("+(a^(b%(c)d)e)f") == "s-as-c-bs-c-a-cs-c-ds-ef");
    CHECK(keys("+(a(b)c)") == "s-as-bs-c");
    CHECK(keys("+({)}a)b") == "s-)s-ab");
}

TEST_CASE("a group without a modifier is its keys") {
    CHECK(keys("(ab)c") == "abc");
    CHECK(keys("()") == "");
}

TEST_CASE("a count repeats a key") {
    CHECK(keys("{LEFT 3}x") == "<25><25><25>x");
    CHECK(keys("{a 4}") == "aaaa");
    CHECK(keys("{  3}") == "   ");
    CHECK(keys("{+ 2}{} 2}{{ 2}") == "++}}{{");
    CHECK(keys("{a   2}") == "aa");
    CHECK(keys("^{TAB 2}") == "c-<09>c-<09>");
    CHECK(keys("{a 1}{b 0}c") == "ac");
}

TEST_CASE("a count is held to 32767") {
    CHECK(parseKeyText("{a 32767}").size() == 32767);
    CHECK(parseKeyText("{a 32768}").size() == 32767);
    CHECK(parseKeyText("{a 99999999999999999999}").size() == 32767);
}

TEST_CASE("a brace expression that is no key is typed as it stands") {
    CHECK(keys("{FOO}") == "{FOO}");
    CHECK(keys("{ENTERS}") == "{ENTERS}");
    CHECK(keys("{a+b~}c") == "{a+b~}c");
    CHECK(keys("{ENTER x}") == "{ENTER x}");
    CHECK(keys("{ENTER -1}") == "{ENTER -1}");
    CHECK(keys("{ENTER 3 4}") == "{ENTER 3 4}");
    CHECK(keys("{ENTER }") == "{ENTER }");
    CHECK(keys("{ENTER3}") == "{ENTER3}");
    CHECK(keys("{ ENTER}") == "{ ENTER}");
    CHECK(keys("{ab 3}") == "{ab 3}");
}

TEST_CASE("a brace without its twin is typed, and what stands behind it keeps its meaning") {
    CHECK(keys("{") == "{");
    CHECK(keys("}") == "}");
    CHECK(keys("{}") == "{}");
    CHECK(keys("a{b{ENTER}") == "a{b<0D>");
    CHECK(keys("{{ENTER}") == "{<0D>");
    CHECK(keys("a}b{ENTER}") == "a}b<0D>");
    CHECK(keys("{}x{ENTER}") == "{}x<0D>");
    CHECK(keys("{ENTER") == "{ENTER");
    CHECK(keys("{{") == "{{");
    CHECK(keys("{{}}") == "{}");
}

TEST_CASE("a bracket without its twin is typed") {
    CHECK(keys("(a{ENTER}") == "(a<0D>");
    CHECK(keys("a){ENTER}") == "a)<0D>");
    CHECK(keys("((a)") == "(a");
    CHECK(keys("(a))") == "a)");
    CHECK(keys(")(") == ")(");
    CHECK(keys("+(a^(b)") == "+(ac-b");
}

TEST_CASE("a modifier with nothing to apply to is typed") {
    CHECK(keys("a+") == "a+");
    CHECK(keys("+^%") == "+^%");
    CHECK(keys("+{FOO}") == "+{FOO}");
    CHECK(keys("^)") == "^)");
    CHECK(keys("%(a") == "%(a");
    CHECK(keys("^}") == "^}");
    CHECK(keys("^(a+)b") == "c-ac-+b");
}

TEST_CASE("nesting of any depth is read") {
    const std::string deep = std::string(100000, '(') + "a" + std::string(100000, ')');
    CHECK(keys(deep) == "a");
    CHECK(parseKeyText(std::string(100000, '(')).size() == 100000);
    CHECK(parseKeyText(std::string(20000, '{')).size() == 20000);
}

TEST_CASE("control characters and binary bytes are characters") {
    const std::string text = std::string("a\0\x01", 3) + western("\xFF\xA7");
    CHECK(keys(text) == text);
}

TEST_SUITE_END();
