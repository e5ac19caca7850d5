// Text box: assignment, selection, editing in its window, typing.
#include "codePages.h"
#include "forms/textBox.h"
#include "runtime/characters.h"

#include "desktop/keyboard.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

using desktop::typeInto;

namespace {

struct Noted : forms::TextBox {
    Noted() {
        onChange = [this] { events.push_back("change " + text()); };
        onKeyDown = [this](int code, int shift) { key("down", code, shift); };
        onKeyUp = [this](int code, int shift) { key("up", code, shift); };
    }
    void key(const std::string& what, int code, int shift) {
        events.push_back(what + " " + std::to_string(code) + " " + std::to_string(shift));
    }
    std::vector<std::string> events;
};

using Events = std::vector<std::string>;

} // namespace

TEST_SUITE_BEGIN("forms/textBox");

TEST_CASE("an assigned text raises the change inside the assignment if it is another one") {
    Noted box;
    box.setText("");
    CHECK(box.events.empty());
    box.setText("a");
    box.setText("a");
    CHECK(box.events == Events{"change a"});
}

TEST_CASE("an assigned text puts the selection at the start, the same text too") {
    Noted box;
    for (const char* text : {"other", "abc"}) {
        box.setText("abc");
        box.setSelStart(1);
        box.setSelLength(2);
        box.setText(text);
        CHECK(box.selStart() == 0);
        CHECK(box.selLength() == 0);
    }
}

TEST_CASE("a text box can be given a part of its own text") {
    Noted box;
    box.setText("a rather long text that is not kept in place");
    box.setText(std::string_view(box.text()).substr(2, 30));
    CHECK(box.text() == "rather long text that is not k");
}

TEST_CASE("the selection is held to the text, and below 0 is an error") {
    Noted box;
    box.setText("100");
    box.setSelStart(0);
    box.setSelLength(3);
    CHECK(box.selLength() == 3);
    box.setSelLength(9);
    CHECK(box.selLength() == 3);
    box.setSelStart(2);
    CHECK(box.selLength() == 0);
    box.setSelLength(5);
    CHECK(box.selLength() == 1);
    box.setSelStart(7);
    CHECK(box.selStart() == 3);
    CHECK_THROWS_AS(box.setSelStart(-1), runtime::RuntimeError);
    CHECK_THROWS_AS(box.setSelLength(-1), runtime::RuntimeError);
}

TEST_CASE("an edit in the window raises the change if it is one, and the selection stays within the text") {
    Noted box;
    box.setText("abcdef");
    box.setSelStart(4);
    box.setSelLength(2);
    box.events.clear();
    box.edited("abcdef");
    CHECK(box.events.empty());
    box.edited("ab");
    CHECK(box.events == Events{"change ab"});
    CHECK(box.selStart() == 2);
    CHECK(box.selLength() == 0);
}

TEST_CASE("the change event of an edit in the window finds the selection as it stands after the edit") {
    forms::TextBox box;
    box.setText("ab");
    int start = -1;
    box.onChange = [&] { start = box.selStart(); };
    box.edited("abc", 3, 0);
    CHECK(start == 3);
    box.edited("abc", 1, 2);
    CHECK(box.selStart() == 1);
    CHECK(box.selLength() == 2);
}

TEST_CASE("a change event may assign the text again") {
    forms::TextBox box;
    int changes = 0;
    box.onChange = [&] {
        ++changes;
        box.setText("fixed");
    };
    box.setText("anything");
    CHECK(box.text() == "fixed");
    CHECK(changes == 2);
}

TEST_CASE("typing a character: key down, press, edit at the selection, change, key up") {
    Noted box;
    box.setText("1234");
    box.setSelStart(1);
    box.setSelLength(2);
    box.events.clear();
    box.onKeyPress = [&](int& keyAscii) { box.events.push_back("press " + std::to_string(keyAscii)); };
    typeInto(box, "a");
    CHECK(box.events == Events{"down 65 0", "press 97", "change 1a4", "up 65 0"});
    CHECK(box.selStart() == 2);
    CHECK(box.selLength() == 0);
    box.events.clear();
    typeInto(box, "B");
    CHECK(box.events == Events{"down 66 1", "press 66", "change 1aB4", "up 66 1"});
}

TEST_CASE("the key press event replaces a character or drops it; the key is released all the same") {
    Noted box;
    box.onKeyPress = [](int& keyAscii) {
        if (keyAscii == ',')
            keyAscii = '.';
        if (keyAscii == 'x')
            keyAscii = 0;
    };
    typeInto(box, "1,5x");
    CHECK(box.text() == "1.5");
    CHECK(box.events.back() == "up 88 0");
    CHECK(box.keyPressed(',') == '.');
    CHECK(box.keyPressed('7') == '7');
}

TEST_CASE("typing stops at the most characters, but goes on over a selection") {
    forms::TextBox box;
    box.maxLength = 3;
    for (int i = 0; i < 5; ++i)
        typeInto(box, "7");
    CHECK(box.text() == "777");
    box.setSelStart(0);
    box.setSelLength(3);
    typeInto(box, "1");
    CHECK(box.text() == "1");
    box.setText("assigned freely");
    CHECK(box.text() == "assigned freely");
}

TEST_CASE("the backspace takes the selection or the character before it") {
    Noted box;
    box.setText("1234");
    box.setSelStart(1);
    box.setSelLength(2);
    typeInto(box, "\b");
    CHECK(box.text() == "14");
    typeInto(box, "\b");
    CHECK(box.text() == "4");
    box.events.clear();
    typeInto(box, "\b");
    CHECK(box.text() == "4");
    CHECK(box.events == Events{"down 8 0", "up 8 0"});
}

TEST_CASE("keys that give no character leave the text alone and are released") {
    Noted box;
    typeInto(box, "\t\r");
    CHECK(box.text().empty());
    CHECK(box.events == Events{"down 9 0", "up 9 0", "down 13 0", "up 13 0"});
}

TEST_CASE("a character beyond ASCII is taken as one of the code page, and counts as one") {
    forms::TextBox box;
    int seen = 0;
    box.onKeyPress = [&](int& keyAscii) { seen = keyAscii; };
    typeInto(box, western("\xA7"));
    CHECK(seen == runtime::characterCode(western("\xA7")));
    CHECK(box.text() == western("\xA7"));
    CHECK(box.selStart() == 1);
    box.maxLength = 2;
    typeInto(box, western("\xA7z"));
    CHECK(box.text() == western("\xA7\xA7"));
    box.setSelStart(1);
    box.setSelLength(9);
    CHECK(box.selLength() == 1);
    typeInto(box, "x");
    CHECK(box.text() == western("\xA7x"));
    box.setSelStart(1);
    typeInto(box, "\b");
    CHECK(box.text() == "x");
}

TEST_CASE("a disabled text box takes no typing") {
    Noted box;
    box.setEnabled(false);
    typeInto(box, "1");
    CHECK(box.text().empty());
    CHECK(box.events.empty());
}

TEST_SUITE_END();
