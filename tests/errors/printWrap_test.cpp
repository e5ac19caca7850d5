#include "codePages.h"
#include "errors/printWrap.h"

#include "fuzz/random.h"
#include "runtime/characters.h"

#include <doctest/doctest.h>

using errors::printLines;
using Lines = std::vector<std::string>;

namespace {

const std::string indent(20, ' ');

/// The rule once more, said in another way: words of a line with their blanks first, then how many of them
/// each printed line takes.
Lines printedPlainly(const std::string& text) {
    Lines printed;
    std::string rest = text;
    while (rest.find("\r\n") != std::string::npos) {
        std::string line = rest.substr(0, rest.find("\r\n"));
        rest = rest.substr(line.size() + 2);
        Lines words(1);
        for (const char character : line) {
            words.back() += character;
            if (character == ' ')
                words.emplace_back();
        }
        words.back() += ' ';
        for (std::size_t first = 0; first < words.size();) {
            std::size_t width = runtime::characterCount(words[first]);
            std::string taken = words[first];
            std::size_t next = first + 1;
            while (next < words.size() && width + runtime::characterCount(words[next]) <= 73) {
                width += runtime::characterCount(words[next]);
                taken += words[next++];
            }
            printed.push_back((first == 0 ? "" : indent) + taken);
            first = next;
        }
    }
    return printed;
}

} // namespace

TEST_SUITE_BEGIN("errors/printWrap");

TEST_CASE("a text is cut into lines at each line end, and each gets a blank") {
    CHECK(printLines("one\r\ntwo words\r\n") == Lines{"one ", "two words "});
    CHECK(printLines("\r\n") == Lines{" "});
    CHECK(printLines("a\r\n\r\n\r\n") == Lines{"a ", " ", " "});
    CHECK(printLines("").empty());
    CHECK(printLines("no line end").empty());
}

TEST_CASE("neither half of a line end ends a line") {
    CHECK(printLines("a\rb\nc\n\r\r\n") == Lines{"a\rb\nc\n\r "});
}

TEST_CASE("a line of 73 columns with its blank goes on one line, one of 74 does not") {
    const std::string word(36, 'x');
    CHECK(printLines(word + " " + std::string(35, 'y') + "\r\n") ==
          Lines{word + " " + std::string(35, 'y') + " "});
    CHECK(printLines(word + " " + word + "\r\n") == Lines{word + " ", indent + word + " "});
}

TEST_CASE("the indent is not counted, so that a line may reach 93 columns") {
    const std::string first(72, 'a');
    const std::string second = std::string(36, 'b') + " " + std::string(35, 'c');
    const Lines printed = printLines(first + " " + second + "\r\n");
    CHECK(printed == Lines{first + " ", indent + second + " "});
    CHECK(printed[1].size() == 93);
}

TEST_CASE("a first word of more than 73 columns goes out whole on its own line") {
    const std::string word(100, 'x');
    CHECK(printLines(word + "\r\n") == Lines{word + " "});
    CHECK(printLines(word + " tail\r\n") == Lines{word + " ", indent + "tail "});
    CHECK(printLines("head " + word + " tail\r\n") == Lines{"head ", indent + word + " ", indent + "tail "});
}

TEST_CASE("several blanks are words of nothing but their blank") {
    CHECK(printLines("a   b\r\n") == Lines{"a   b "});
    CHECK(printLines("   \r\n") == Lines{"    "});
    CHECK(printLines(std::string(80, ' ') + "\r\n") ==
          Lines{std::string(73, ' '), indent + std::string(8, ' ')});
}

TEST_CASE("a tab is an ordinary character of a word") {
    const std::string word = "Zeilen-Nr.:\t0";
    CHECK(printLines("          " + word + "\r\n") == Lines{"          " + word + " "});
    const std::string tabs(73, '\t');
    CHECK(printLines("a " + tabs + "\r\n") == Lines{"a ", indent + tabs + " "});
}

TEST_CASE("random texts are wrapped as the plain rule says") {
    fuzz::Random random(20060508);
    for (int round = 0; round < 4000; ++round) {
        std::string text;
        const std::size_t pieces = random.below(40);
        for (std::size_t piece = 0; piece < pieces; ++piece) {
            constexpr const char* ends[] = {" ", " ", " ", "  ", "\r\n", "\t", "\r", "\n", " \r\n"};
            text += random.text(western("abc\t\xE4"), random.below(20) == 0 ? 160 : 14) + random.oneOf(ends);
        }
        text += random.below(4) == 0 ? "" : "\r\n";
        CHECK(printLines(text) == printedPlainly(text));
    }
}

TEST_SUITE_END();
