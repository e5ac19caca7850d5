// A text box and the field that shows it: texts go both ways.
#include "codePages.h"
#include "contract/world.h"
#include "forms/form.h"
#include "forms/textBox.h"
#include "runtime/characters.h"

#include <doctest/doctest.h>

#include <vector>

namespace {

using contract::World;

class EntryForm : public forms::Form {
  public:
    EntryForm() {
        borderStyle = forms::BorderStyle::fixedSingle;
        setCaption("entry");
        setClientSize(3000, 900);
        box.place(*this, {150, 150, 2400, 300});
        other.place(*this, {150, 500, 2400, 300});
        box.onChange = [this] { changes.push_back(box.text()); };
    }
    forms::TextBox box;
    forms::TextBox other;
    std::vector<std::string> changes;
};

} // namespace

TEST_SUITE_BEGIN("contract/textBox");

TEST_CASE("a text that is assigned shows at once, with one change event") {
    World world;
    EntryForm form;
    form.box.setText("before");
    form.show();
    CHECK(World::shownText(form.box) == "before");
    form.changes.clear();
    form.box.setText(western("1.5 mm \xE4\x80"));
    CHECK(form.changes == std::vector<std::string>{western("1.5 mm \xE4\x80")});
    CHECK(World::shownText(form.box) == western("1.5 mm \xE4\x80"));
    form.box.setText(western("1.5 mm \xE4\x80"));
    CHECK(form.changes.size() == 1);
    form.box.setText("");
    CHECK(World::shownText(form.box).empty());
    CHECK(form.changes.size() == 2);
}

TEST_CASE("what is typed arrives in the text, one change event for each character") {
    World world;
    EntryForm form;
    form.show();
    world.typeInto(form.box, western("2.54\xA7"));
    CHECK(World::until([&] { return form.box.text() == western("2.54\xA7"); }));
    CHECK(form.changes == std::vector<std::string>{"2", "2.", "2.5", "2.54", western("2.54\xA7")});
    CHECK(World::shownText(form.box) == western("2.54\xA7"));
    CHECK(form.other.text().empty());
}

TEST_CASE("letters of every code page are typed, counted and selected as characters") {
    World world;
    EntryForm form;
    form.box.maxLength = 9;
    form.show();
    const std::string word = treacherous();
    const auto letters = static_cast<int>(runtime::characterCount(word));
    std::vector<int> codes;
    form.box.onKeyPress = [&codes](int& keyAscii) { codes.push_back(keyAscii); };
    world.typeInto(form.box, word);
    REQUIRE(World::until([&] { return form.box.text() == word; }));
    CHECK(World::shownText(form.box) == word);
    CHECK(form.changes.size() == static_cast<std::size_t>(letters));
    CHECK(form.box.selStart() == letters);
    CHECK(codes.size() == static_cast<std::size_t>(letters));
    CHECK(codes.front() == runtime::characterCode(word.substr(0, runtime::characterSize(word))));

    world.typeInto(form.box, "123456789");
    const std::string full = word + std::string("123456789").substr(0, static_cast<std::size_t>(9 - letters));
    CHECK(World::until([&] { return form.box.text() == full; }));
    form.box.setSelStart(1);
    form.box.setSelLength(letters - 1);
    world.typeInto(form.box, "x");
    const std::string expected =
        word.substr(0, runtime::characterSize(word)) + "x" + full.substr(word.size());
    CHECK(World::until([&] { return form.box.text() == expected; }));
    CHECK(World::shownText(form.box) == expected);
    CHECK(form.box.selStart() == 2);
}

TEST_CASE("a letter typed may be replaced by one of several bytes") {
    World world;
    EntryForm form;
    form.box.onKeyPress = [](int& keyAscii) { keyAscii = runtime::characterCode(western("\xA7")); };
    form.show();
    world.typeInto(form.box, "ab");
    CHECK(World::until([&] { return form.box.text() == western("\xA7\xA7"); }));
    CHECK(World::shownText(form.box) == western("\xA7\xA7"));
}

TEST_CASE("a character beyond the first 65536 is one, where the code page has it") {
    if (platform::GetACP() != platform::utf8CodePage)
        return;
    World world;
    EntryForm form;
    form.show();
    world.typeInto(form.box, "a\xF0\x9F\x98\x80z");
    CHECK(World::until([&] { return form.box.text() == "a\xF0\x9F\x98\x80z"; }));
    CHECK(form.changes.size() == 3);
    CHECK(form.box.selStart() == 3);
    form.box.setSelStart(1);
    form.box.setSelLength(1);
    world.typeInto(form.box, "-");
    CHECK(World::until([&] { return form.box.text() == "a-z"; }));
}

TEST_CASE("typing goes on where the selection stands") {
    World world;
    EntryForm form;
    form.box.setText("acd");
    form.show();
    form.box.setSelStart(1);
    form.box.setSelLength(1);
    world.typeInto(form.box, "bx");
    CHECK(World::until([&] { return form.box.text() == "abxd"; }));
    CHECK(World::shownText(form.box) == "abxd");
}

TEST_CASE("a comma can be replaced by a dot while it is typed") {
    World world;
    EntryForm form;
    form.box.onKeyPress = [](int& keyAscii) {
        if (keyAscii == ',')
            keyAscii = '.';
    };
    form.show();
    world.typeInto(form.box, "2,54");
    CHECK(World::until([&] { return form.box.text() == "2.54"; }));
    CHECK(World::shownText(form.box) == "2.54");
    CHECK(form.changes == std::vector<std::string>{"2", "2.", "2.5", "2.54"});
}

TEST_CASE("a character that the key press event drops does not arrive") {
    World world;
    EntryForm form;
    form.box.onKeyPress = [](int& keyAscii) {
        if (keyAscii == 'x')
            keyAscii = 0;
    };
    form.show();
    world.typeInto(form.box, "1xx2");
    CHECK(World::until([&] { return form.box.text() == "12"; }));
    CHECK(World::shownText(form.box) == "12");
}

TEST_CASE("no more is taken than the greatest length") {
    World world;
    EntryForm form;
    form.box.maxLength = 3;
    form.show();
    world.typeInto(form.box, "12345");
    CHECK(World::until([&] { return form.box.text() == "123"; }));
    CHECK(World::shownText(form.box) == "123");
}

TEST_CASE("a text that a change event assigns is the one that stays") {
    World world;
    EntryForm form;
    form.box.onChange = [&form] {
        if (form.box.text() == "ab")
            form.box.setText("AB!");
    };
    form.show();
    world.typeInto(form.box, "ab");
    CHECK(World::until([&] { return form.box.text() == "AB!"; }));
    CHECK(World::shownText(form.box) == "AB!");
}

TEST_SUITE_END();
