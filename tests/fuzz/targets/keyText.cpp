// Key text: nothing is lost, nothing fails.
#include "fuzz/targets/targets.h"

#include "runtime/characters.h"
#include "runtime/keyText.h"

namespace fuzz {

namespace {

constexpr char32_t notation[] = U"+^%(){}[]~ 0123456789";

bool isNotation(char32_t character) {
    return std::u32string_view(notation).find(character) != std::u32string_view::npos;
}

std::size_t countOf(std::u32string_view text, char32_t character) {
    std::size_t count = 0;
    for (const char32_t each : text)
        count += each == character ? 1 : 0;
    return count;
}

} // namespace

void keyText(std::string_view input) {
    constexpr std::size_t mostRepeats = 32767;
    const auto strokes = runtime::parseKeyText(input);
    expect(strokes.size() <= input.size() * mostRepeats, "more strokes than repeat counts allow", input);
    const std::u32string characters = runtime::toUtf32(input);
    for (const platform::KeyStroke& stroke : strokes) {
        expect((stroke.key == platform::Key::none) == (stroke.character != 0) || countOf(characters, 0) > 0,
               "a stroke is a key or a character", input);
        if (stroke.character != 0)
            expect(characters.find(stroke.character) != std::u32string::npos,
                   "a character that is typed stands in the text", input);
    }
    // Outside of braces each character is typed as often as it is written.
    if (input.find('{') == std::string_view::npos) {
        std::u32string typed;
        for (const platform::KeyStroke& stroke : strokes)
            if (stroke.key == platform::Key::none)
                typed += stroke.character;
        for (const char32_t character : characters)
            if (!isNotation(character))
                expect(countOf(typed, character) == countOf(characters, character),
                       "a character is typed as often as it is written", input);
    }
    std::string braced;
    for (const char32_t character : characters)
        braced += "{" + runtime::fromUtf32({&character, 1}) + "}";
    std::u32string typed;
    for (const platform::KeyStroke& stroke : runtime::parseKeyText(braced)) {
        expect(stroke.key == platform::Key::none, "a character in braces is no key", input);
        typed += stroke.character;
    }
    expect(typed == characters, "a text in braces is typed as it is", input);
}

} // namespace fuzz
