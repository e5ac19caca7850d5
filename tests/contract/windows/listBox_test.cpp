// A list box as a window: keys that the program takes, files that are dropped on it. And the help key, which
// each dialog takes wherever the keyboard is.
#include "contract/world.h"
#include "forms/button.h"
#include "forms/form.h"
#include "forms/listBox.h"
#include "forms/textBox.h"
#include "platform/messages.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <shlobj.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

using contract::World;
using platform::Key;

class Dialog : public forms::Form {
  public:
    Dialog() {
        setClientSize(6000, 3000);
        list.place(*this, {60, 60, 3000, 2000});
        field.place(*this, {60, 2200, 3000, 300});
        button.place(*this, {60, 2600, 1335, 315});
        for (const char* row : {"alpha", "beta", "delta"})
            list.addItem(row);
        list.onKey = [this](const platform::KeyStroke& stroke) {
            strokes.push_back(stroke);
            return stroke.control || stroke.key == Key::deleteKey;
        };
        list.onFiles = [this](const auto& files) { dropped.push_back(files); };
        onHelp = [this] { ++helped; };
        show();
    }
    ~Dialog() override { onHelp = nullptr; }
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    HWND window() { return win32::native(list.hWnd()); }
    int row() { return static_cast<int>(SendMessageA(window(), LB_GETCURSEL, 0, 0)); }

    forms::ListBox list;
    forms::TextBox field;
    forms::CommandButton button;
    std::vector<platform::KeyStroke> strokes;
    std::vector<std::vector<std::string>> dropped;
    int helped = 0;
};

/// Presses a key as the loop gets it, with Ctrl held or not.
void press(HWND window, WPARAM key, bool control = false) {
    BYTE before[256] = {};
    GetKeyboardState(before);
    BYTE state[256] = {};
    state[VK_CONTROL] = control ? 0x80 : 0;
    SetKeyboardState(state);
    SendMessageA(window, WM_KEYDOWN, key, 1);
    // What the system makes of the key: the letters' places in the alphabet.
    if (control && key >= 'A' && key <= 'Z')
        SendMessageA(window, WM_CHAR, key - 'A' + 1, 1);
    SetKeyboardState(before);
}

/// What the shell sends. The place is in client pixels of the window.
void drop(HWND window, const std::wstring& names, POINT place = {}) {
    const std::size_t size = sizeof(DROPFILES) + names.size() * sizeof(wchar_t);
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size);
    REQUIRE(block != nullptr);
    auto* const files = static_cast<DROPFILES*>(GlobalLock(block));
    files->pFiles = sizeof(DROPFILES);
    files->fWide = TRUE;
    files->pt = place;
    std::memcpy(files + 1, names.data(), names.size() * sizeof(wchar_t));
    GlobalUnlock(block);
    SendMessageA(window, WM_DROPFILES, reinterpret_cast<WPARAM>(block), 0);
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/listBox");

TEST_CASE("rows that are replaced before anybody has asked are the new ones, put in once") {
    const World world;
    Dialog dialog;
    dialog.list.setListIndex(2);
    for (const char* last : {"first", "second", "third"}) {
        dialog.list.clear();
        for (const char* row : {"one", "two", last})
            dialog.list.addItem(row);
    }
    const auto row = [&dialog](WPARAM number) {
        std::string text(100, '\0');
        text.resize(static_cast<std::size_t>(
            SendMessageA(dialog.window(), LB_GETTEXT, number, reinterpret_cast<LPARAM>(text.data()))));
        return text;
    };
    CHECK(SendMessageA(dialog.window(), LB_GETCOUNT, 0, 0) == 3);
    CHECK(row(0) == "one");
    CHECK(row(2) == "third");
    CHECK(dialog.row() == -1);

    dialog.list.clear();
    dialog.list.addItem("alone");
    dialog.list.setListIndex(0);
    CHECK(dialog.row() == 0);
    CHECK(row(0) == "alone");
    dialog.list.addItem("behind it");
    CHECK(SendMessageA(dialog.window(), LB_GETCOUNT, 0, 0) == 2);
    CHECK(dialog.row() == 0);
}

TEST_CASE("a key that is taken does nothing else, any other is the list's own") {
    const World world;
    Dialog dialog;
    dialog.list.setListIndex(0);
    press(dialog.window(), VK_DOWN, true);
    CHECK(dialog.row() == 0);
    press(dialog.window(), 'D', true);
    CHECK(dialog.row() == 0);
    REQUIRE(dialog.strokes.size() == 2);
    CHECK(dialog.strokes[0].key == Key::down);
    CHECK(dialog.strokes[0].control);
    CHECK(dialog.strokes[1].key == Key::none);
    CHECK(dialog.strokes[1].character == U'd');
    press(dialog.window(), VK_DELETE);
    CHECK(dialog.strokes[2].key == Key::deleteKey);
    CHECK_FALSE(dialog.strokes[2].control);
    press(dialog.window(), VK_DOWN);
    CHECK(dialog.row() == 1);
    press(dialog.window(), 'D');
    SendMessageA(dialog.window(), WM_CHAR, 'd', 1);
    CHECK(dialog.row() == 2);
}

TEST_CASE("files that are dropped come with their full paths, however many and however long") {
    const World world;
    Dialog dialog;
    CHECK((GetWindowLongA(dialog.window(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES) != 0);
    drop(dialog.window(), std::wstring(L"C:\\a b.exe\0D:\\folder\0\0", 22));
    REQUIRE(dialog.dropped.size() == 1);
    CHECK(dialog.dropped[0] == std::vector<std::string>{"C:\\a b.exe", "D:\\folder"});
    const std::wstring longPath = L"C:\\" + std::wstring(1000, L'x');
    std::wstring names;
    for (int number = 0; number < 500; ++number)
        names += longPath + L'\0';
    drop(dialog.window(), names + L'\0');
    REQUIRE(dialog.dropped.size() == 2);
    CHECK(dialog.dropped[1].size() == 500);
    CHECK(dialog.dropped[1].back() == std::string(longPath.begin(), longPath.end()));
}

TEST_CASE("a form that is told of files tells the list under the mouse, and nobody where there is none") {
    const World world;
    Dialog dialog;
    const std::wstring name(L"C:\\a.exe\0\0", 10);
    const HWND form = win32::native(dialog.hWnd());
    RECT list = {};
    GetWindowRect(dialog.window(), &list);
    MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&list), 2);
    drop(form, name, {list.left + 5, list.top + 5});
    REQUIRE(dialog.dropped.size() == 1);
    CHECK(dialog.dropped[0] == std::vector<std::string>{"C:\\a.exe"});
    drop(form, name, {list.right + 5, list.top + 5});
    drop(form, name, {list.left + 5, list.bottom + 20}); // a field, which takes none
    dialog.list.setVisible(false);
    drop(form, name, {list.left + 5, list.top + 5});
    CHECK(dialog.dropped.size() == 1);
}

TEST_CASE("nothing is dropped on a dialog under another one, nor on a disabled list") {
    const World world;
    Dialog dialog;
    const std::wstring name(L"C:\\a.exe\0\0", 10);
    const HWND form = win32::native(dialog.hWnd());
    EnableWindow(form, FALSE);
    drop(dialog.window(), name);
    EnableWindow(form, TRUE);
    dialog.list.setEnabled(false);
    drop(dialog.window(), name);
    CHECK(dialog.dropped.empty());
}

TEST_CASE("F1 is help wherever the keyboard is in a dialog") {
    const World world;
    Dialog dialog;
    for (forms::Control* control :
         {static_cast<forms::Control*>(&dialog.list), static_cast<forms::Control*>(&dialog.field),
          static_cast<forms::Control*>(&dialog.button)}) {
        const int before = dialog.helped;
        PostMessageA(win32::native(control->hWnd()), WM_KEYDOWN, VK_F1, 1);
        platform::doEvents();
        CHECK(dialog.helped == before + 1);
    }
}

TEST_SUITE_END();
