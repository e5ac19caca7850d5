// Key text: nothing is lost, nothing fails.
#include "fuzz/targets/targets.h"

#include "runtime/characters.h"
#include "runtime/keyText.h"

#include <algorithm>
#include <utility>

namespace fuzz {

namespace {

constexpr char32_t notation[] = U"+^%(){}[]~ 0123456789";

bool isNotation(char32_t character) {
    return std::u32string_view(notation).find(character) != std::u32string_view::npos;
}

/// What is no notation, in order: each as often as it stands there.
std::u32string plainSorted(std::u32string text) {
    std::erase_if(text, isNotation);
    std::ranges::sort(text);
    return text;
}

} // namespace

void keyText(std::string_view input) {
    constexpr std::size_t mostRepeats = 32767;
    const auto strokes = runtime::parseKeyText(input);
    expect(strokes.size() <= input.size() * mostRepeats, "more strokes than repeat counts allow", input);
    const std::u32string characters = runtime::toUtf32(input);
    const bool hasNul = characters.find(U'\0') != std::u32string::npos;
    // Repeats of a stroke are looked at once.
    for (std::size_t at = 0; at < strokes.size(); ++at) {
        const platform::KeyStroke& stroke = strokes[at];
        if (at > 0 && stroke == strokes[at - 1])
            continue;
        expect((stroke.key == platform::Key::none) == (stroke.character != 0) || hasNul,
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
        expect(plainSorted(std::move(typed)) == plainSorted(characters),
               "a character is typed as often as it is written", input);
    }
    std::u32string inBraces;
    for (const char32_t character : characters)
        inBraces.append({U'{', character, U'}'});
    const std::string braced = runtime::fromUtf32(inBraces);
    std::u32string typed;
    for (const platform::KeyStroke& stroke : runtime::parseKeyText(braced)) {
        expect(stroke.key == platform::Key::none, "a character in braces is no key", input);
        typed += stroke.character;
    }
    expect(typed == characters, "a text in braces is typed as it is", input);
}

} // namespace fuzz
