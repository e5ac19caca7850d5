// Key text, from the notation to what an edit field of another program then holds.
#include "codePages.h"
#include "contract/world.h"
#include "platform/keySender.h"
#include "runtime/keyText.h"

#include <doctest/doctest.h>

#include <span>
#include <string>

namespace {

using contract::World;

void type(std::string_view keyText) {
    platform::sendKeys(runtime::parseKeyText(keyText), true);
}

/// The text in a notation that stands for nothing but its characters.
std::string escaped(std::string_view text) {
    std::string notation;
    for (const char character : text) {
        const bool special = std::string_view("+^%~(){}[]").find(character) != std::string_view::npos;
        notation += special ? std::string("{") + character + "}" : std::string(1, character);
    }
    return notation;
}

struct Case {
    std::string typed;
    std::string arrives;
};

/// Types each text into an empty edit field and compares what it holds in the end.
void checkArrive(std::span<const Case> cases) {
    World world;
    const platform::HWND editor = world.openEditor();
    for (const auto& [typed, arrives] : cases) {
        type(typed);
        World::until([&] { return world.editorText(editor) == arrives; });
        CHECK(world.editorText(editor) == arrives);
        world.clearEditor(editor);
    }
}

} // namespace

TEST_SUITE_BEGIN("contract/keyText");

TEST_CASE("every character arrives that is typed by the notation") {
    const std::string text =
        western("aZ0 +^%~(){}[] \xE4\xF6\xFC\xC4\xD6\xDC\xDF\x80 @\\|<>\"';:.*,-_=?!#$&/`\xA7\xB5");
    const Case cases[] = {{escaped(text), text}};
    checkArrive(cases);
}

TEST_CASE("a command of 500 characters arrives whole and in order") {
    std::string text;
    for (int number = 0; text.size() < 500; ++number)
        text += "grid mm " + std::to_string(number) + "; ";
    const Case cases[] = {{text, text}};
    checkArrive(cases);
}

TEST_CASE("Enter, repeats and the keys that move and delete do what they are named for") {
    const Case cases[] = {
        {"window fit{ENTER}", "window fit\r\n"},
        {"a~b{enter}c", "a\r\nb\r\nc"},
        {"run ulpx{BS}s", "run ulps"},
        {"abcdef{BACKSPACE 3}x", "abcx"},
        {"{x 5}{- 2}", "xxxxx--"},
        {"ac{LEFT}b", "abc"},
        {"abc{LEFT 2}{RIGHT}x", "abxc"},
        {"abc{HOME}x{END}y", "xabcy"},
        {"abc{HOME}{DEL}{DELETE 1}", "c"},
        {"{ENTER 2}x", "\r\n\r\nx"},
    };
    checkArrive(cases);
}

TEST_CASE("modifiers hold for the next key or group and no longer") {
    const Case cases[] = {
        {"+ab", "Ab"},
        {"+(ab)c", "ABc"},
        {"abc+{LEFT 2}x", "ax"},
        {"ab~cd^{HOME}x", "xab\r\ncd"},
        {"abcd{HOME}+({RIGHT}{RIGHT}){DEL}e", "ecd"},
    };
    checkArrive(cases);
}

TEST_CASE("what is no notation is typed as it stands") {
    const Case cases[] = {
        {"{nosuchkey} x", "{nosuchkey} x"},
        {"a(b", "a(b"},
        {"a)b", "a)b"},
        {"}{", "}{"},
        {"[x]", "[x]"},
        {"{x -1}", "{x -1}"},
    };
    checkArrive(cases);
}

TEST_SUITE_END();
