// What `mend=1` changes about a click: what is typed, quoted and split.
#include "codePages.h"
#include "mending.h"
#include "runtime/characters.h"
#include "toolbars/buttonTag.h"
#include "toolbars/describedButton.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

using platform::Key;
using platform::KeyStroke;
using store::EditorKind;

namespace {

/// A board's toolbar with one button, which a test describes.
struct Clicked : Mending {
    explicit Clicked(bool on, const std::string& programFolder = "C:\\kestrel") : Mending(on) {
        desk().programFolder = programFolder;
        desk().openWindow("1 Board - x.brd - EAGLE");
        ticks(1);
    }
    bool click(const std::string& path, int dialog, const std::string& param, int type) {
        forms::ToolbarButton clicked;
        clicked.key = "x1";
        clicked.tag = toolbars::buttonTag(toolbars::describedButton(path, dialog, param, type));
        return desk().event([&] { toolbar(EditorKind::board, 1).Toolbar_ButtonClick(clicked); });
    }
    const std::vector<KeyStroke>& strokes() {
        REQUIRE_FALSE(desk().typed.empty());
        return desk().typed.back().strokes;
    }
    /// What was typed if all strokes are plain characters but the Enter key at the end; else empty.
    std::string plain() {
        std::u32string text;
        for (const KeyStroke& stroke : strokes()) {
            const bool last = &stroke == &strokes().back();
            if (last != (stroke == KeyStroke{.key = Key::enter}))
                return {};
            if (!last && stroke != KeyStroke{.character = stroke.character})
                return {};
            if (!last)
                text += stroke.character;
        }
        return runtime::fromUtf32(text);
    }
    std::string started() { return desk().started.empty() ? "" : desk().started.back().commandLine; }
};

} // namespace

TEST_SUITE_BEGIN("toolbars/clickMend");

TEST_CASE("a chosen file with the notation's characters: off they act as keys, on it arrives whole") {
    const std::string file = "C:\\Program Files (x86)\\a+b^c%d~e{TAB}[f]\\{}.ulp";
    for (const bool on : offAndOn) {
        CAPTURE(on);
        Clicked program(on);
        program.desk().fileAnswers = {file};
        REQUIRE(program.click("run", 2, "Which?", 1));
        REQUIRE(program.desk().typed.size() == 1);
        CHECK(program.desk().typed[0].wait);
        CHECK((program.plain() == "run " + file) == on);
    }
}

TEST_CASE("an input likewise, in one batch with the command") {
    for (const std::string& input :
         {std::string("(1 2) (3 4)"), std::string("50%"), std::string("R1+R2"), std::string("~"),
          std::string("{ENTER}"), std::string("{"), treacherous() + "{", std::string(")")}) {
        CAPTURE(input);
        Clicked program(true);
        program.desk().inputAnswers = {input};
        REQUIRE(program.click("window", 1, "Where?", 1));
        REQUIRE(program.desk().typed.size() == 1);
        CHECK(program.plain() == "window " + input);
    }
    Clicked off(false);
    off.desk().inputAnswers = {"50%"};
    REQUIRE(off.click("window", 1, "Where?", 1));
    CHECK(off.plain().empty());
}

TEST_CASE("on, a token stands for its text, anywhere in the command, under no modifier") {
    Clicked program(true, "C:\\Kestrel (x86)+");
    REQUIRE(program.click("run {kestrelpath}\\a.ulp {eaglepath}{kestrelpath}", 0, "", 1));
    CHECK(program.plain() == "run C:\\Kestrel (x86)+\\a.ulp C:\\Kestrel (x86)+");
    Clicked off(false, "C:\\Kestrel (x86)+");
    REQUIRE(off.click("run {kestrelpath}\\a.ulp", 0, "", 1));
    CHECK(off.plain().empty());
    // One that is not all lower case is none.
    REQUIRE(program.click("{KestrelPath}", 0, "", 1));
    CHECK(program.plain() == "{KestrelPath}");
}

TEST_CASE("on, the command's own text is key notation as before, parsed alone") {
    const auto stroke = [](char32_t character, bool shift = false, bool control = false) {
        return KeyStroke{.character = character, .shift = shift, .control = control};
    };
    const KeyStroke enter{.key = Key::enter};
    using Strokes = std::vector<KeyStroke>;
    Clicked program(true, "C:");
    REQUIRE(program.click("^(a{TAB})~", 0, "", 1));
    CHECK(program.strokes() ==
          Strokes{stroke('a', false, true), {.key = Key::tab, .control = true}, enter, enter});
    // A modifier at its end, and a bracket without a twin, do not reach beyond it.
    program.desk().inputAnswers = {"b)"};
    REQUIRE(program.click("+(a^", 1, "?", 1));
    CHECK(program.strokes() == Strokes{stroke('+'), stroke('('), stroke('a'), stroke('^'), stroke(' '),
                                       stroke('b'), stroke(')'), enter});
    REQUIRE(program.click("a^", 0, "", 1));
    CHECK(program.strokes() == Strokes{stroke('a'), stroke('^'), enter});
    // A group around a token holds, but not for what the token stands for.
    REQUIRE(program.click("+(a{kestrelpath}b)^{kestrelpath}", 0, "", 1));
    CHECK(program.strokes() == Strokes{stroke('a', true), stroke('C'), stroke(':'), stroke('b', true),
                                       stroke('^'), stroke('C'), stroke(':'), enter});
}

TEST_CASE("on, what has nothing special in it is typed as without the mend") {
    for (const char* command : {"window fit", "run ulp", "+(abc)", "{F1 3}", "", "a;b;", "{{}x{}}"}) {
        const std::vector<KeyStroke> before = [&] {
            Clicked off(false);
            off.desk().inputAnswers = {"abc def"};
            REQUIRE(off.click(command, 1, "?", 1));
            return off.strokes();
        }();
        Clicked on(true);
        on.desk().inputAnswers = {"abc def"};
        REQUIRE(on.click(command, 1, "?", 1));
        CHECK(on.strokes() == before);
    }
}

TEST_CASE("a chosen file with a blank behind a program: off as it stands, on in quotes") {
    for (const bool on : offAndOn)
        for (const char* file : {"C:\\my work\\a.brd", "C:\\work\\a.brd"}) {
            CAPTURE(on);
            CAPTURE(file);
            Clicked program(on);
            program.desk().writeFile("C:\\t\\x.exe", "MZ");
            program.desk().fileAnswers = {file};
            REQUIRE(program.click("C:\\t\\x.exe", 2, "Which?", 0));
            const bool quoted = on && std::string(file).find(' ') != std::string::npos;
            CHECK(program.started() ==
                  (quoted ? "C:\\t\\x.exe \"C:\\my work\\a.brd\"" : "C:\\t\\x.exe " + std::string(file)));
        }
}

TEST_CASE("on, what the user types, and a file that is typed into EAGLE, gets no quotes") {
    Clicked program(true);
    program.desk().writeFile("C:\\t\\x.exe", "MZ");
    program.desk().inputAnswers = {"a b c"};
    REQUIRE(program.click("C:\\t\\x.exe", 1, "?", 0));
    CHECK(program.started() == "C:\\t\\x.exe a b c");
    program.desk().fileAnswers = {"C:\\my work\\a.ulp"};
    REQUIRE(program.click("run", 2, "?", 1));
    CHECK(program.plain() == "run C:\\my work\\a.ulp");
    REQUIRE(program.click("C:\\t\\x.exe", 0, "", 0));
    CHECK(program.started() == "C:\\t\\x.exe");
}

TEST_CASE("a section sign in path and prompt: off the end of the program, on both are kept whole") {
    const std::string sign = toolbars::tagMark();
    for (const bool on : offAndOn) {
        CAPTURE(on);
        Clicked program(on);
        program.desk().inputAnswers = {"x"};
        CHECK(program.click("a" + sign + sign + "b", 1, sign + "?" + sign, 1) == on);
        if (on) {
            CHECK(program.desk().inputBoxes.at(0).prompt == sign + "?" + sign);
            CHECK(program.plain() == "a" + sign + sign + "b x");
        }
    }
}

TEST_CASE("on, a tag's own escape is kept whole too, and a tag without either is the same as off") {
    Clicked program(true);
    const std::string odd = std::string("\x1E") + "0\x1E" + "1\x1E" + toolbars::tagMark() + "0";
    program.desk().inputAnswers = {"x"};
    REQUIRE(program.click("p", 1, odd, 1));
    CHECK(program.desk().inputBoxes.at(0).prompt == odd);
    store::ToolButton button;
    button.path = "run " + treacherous();
    button.param = "Name?";
    const std::string on = toolbars::buttonTag(button);
    store::mendsOn = false;
    CHECK(toolbars::buttonTag(button) == on);
}

TEST_CASE("a dialog of 9 in a click asks for nothing, off and on") {
    for (const bool on : offAndOn) {
        Clicked program(on);
        REQUIRE(program.click("drc", 9, "?", 1));
        CHECK(program.plain() == "drc");
        CHECK(program.desk().inputBoxes.empty());
        CHECK(program.desk().fileDialogs.empty());
    }
}

TEST_SUITE_END();
