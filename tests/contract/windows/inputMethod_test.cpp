// What an input method and the clipboard bring into a text box.
#include "codePages.h"
#include "contract/world.h"
#include "forms/form.h"
#include "forms/textBox.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <string>

namespace {

using contract::World;

class EntryForm : public forms::Form {
  public:
    EntryForm() {
        borderStyle = forms::BorderStyle::fixedSingle;
        setCaption("entry");
        setClientSize(3000, 900);
        box.place(*this, {150, 150, 2400, 300});
        show();
    }
    HWND field() { return reinterpret_cast<HWND>(box.hWnd()); }
    forms::TextBox box;
};

std::u16string shown(HWND field) {
    std::u16string text(64, u'\0');
    const int length =
        GetWindowTextW(field, reinterpret_cast<wchar_t*>(text.data()), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/inputMethod");

TEST_CASE("what an input method has composed arrives once, each character with its event") {
    World world;
    EntryForm form;
    int pressed = 0;
    int changed = 0;
    form.box.onKeyPress = [&pressed](int&) { ++pressed; };
    form.box.onChange = [&changed] { ++changed; };
    const char16_t composed = codePageHas(u'\u3042') ? u'\u3042' : u'\u00A7';
    for (int count = 0; count < 3; ++count)
        SendMessageW(form.field(), WM_IME_CHAR, composed, 1);
    CHECK(World::until([&] { return changed >= 3; }));
    const std::u16string expected(3, composed);
    CHECK(form.box.text() == platform::toAnsi(expected));
    CHECK(shown(form.field()) == expected);
    CHECK(pressed == 3);
    CHECK(changed == 3);
    CHECK(form.box.selStart() == 3);
}

TEST_CASE("what the code page lacks is shown as what has been taken of it") {
    World world;
    EntryForm form;
    const char16_t foreign = codePageHas(u'\u0E07') ? u'\u00A7' : u'\u0E07';
    const std::wstring text = {L'a', static_cast<wchar_t>(foreign), L'z'};
    SendMessageW(form.field(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
    CHECK(form.box.text() == (foreign == u'\u0E07' ? "a?z" : western("a\xA7z")));
    CHECK(shown(form.field()) == platform::toUtf16(form.box.text()));
    CHECK(form.box.selStart() == 3);
    SendMessageW(form.field(), WM_CHAR, foreign, 1);
    CHECK(shown(form.field()) == platform::toUtf16(form.box.text()));
    CHECK(form.box.text().size() > 3);
}

TEST_SUITE_END();
