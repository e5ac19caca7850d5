// The system makes no more windows, fonts, icons, pictures and so on, from any call on: what the program puts
// into a host is whole or not there, the host counts as known, and all that was there before works on.
#include "contract/windows/creationLimit.h"
#include "contract/windows/hostGuest.h"
#include "contract/windows/nativeBar.h"
#include "contract/world.h"
#include "core/hauptform.h"
#include "platform/clipboard.h"
#include "runtime/errorOf.h"
#include "setup/frmSetup.h"
#include "store/state.h"
#include "win32/common/messages.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace {

using contract::CreationLimit;
using contract::World;

/// The tracker with a board that has a toolbar and a calculator.
class Tracking {
  public:
    Tracking() {
        std::string settings = "[board]\r\n";
        const std::string ofFile = World::dataFile("brd.ico") + ",0\r\n";
        const std::string ofLibrary = world.iconFile(contract::IconSource::dll).path + ",1\r\n";
        for (const char* row : {"1", "2", "3"})
            settings += std::string(row) + "name=A\r\n" + row + "path=window fit\r\n" + row + "dialog=0\r\n" +
                        row + "type=1\r\n" + row + "icon=" + (*row == '3' ? ofLibrary : ofFile);
        world.writeFile(World::settingsPath(), settings);
        store::unitCalcActive = 1;
        first = openBoard();
    }
    ~Tracking() {
        store::unitCalcActive = 0;
        store::boardButtons = {};
    }
    Tracking(const Tracking&) = delete;
    Tracking& operator=(const Tracking&) = delete;

    platform::HWND openBoard() {
        const platform::HWND board = world.openWindow("1 Board - x.brd - EAGLE");
        tick();
        return board;
    }

    void tick() {
        form.setWindow();
        win32::servePending();
    }

    void closeBoard(platform::HWND board) {
        world.closeWindow(board);
        CHECK(World::until([&] { return form.toolbarsBRD.back()->hWnd() == platform::HWND::none; }));
    }

    /// Whether a toolbar has each of its windows, its buttons and their pictures.
    static bool isWhole(toolbars::frmToolbar& toolbar) {
        const auto images = reinterpret_cast<HIMAGELIST>(contract::ask(toolbar.toolbar, TB_GETIMAGELIST));
        return toolbar.hWnd() != platform::HWND::none && toolbar.windowsMade() &&
               contract::ask(toolbar.toolbar, TB_BUTTONCOUNT) == 4 && images != nullptr &&
               ImageList_GetImageCount(images) == 5;
    }

    /// Opens a board while the function fails from a call on, and closes it. It is as known as any other.
    void openRefused(std::string_view function, int left) {
        CAPTURE(std::string(function));
        CAPTURE(left);
        const std::size_t entry = form.toolbarsBRD.size();
        platform::HWND board = platform::HWND::none;
        {
            const CreationLimit limit(function, left);
            board = openBoard();
            CHECK(CreationLimit::met());
        }
        REQUIRE(form.toolbarsBRD.size() == entry + 1);
        toolbars::frmToolbar& toolbar = *form.toolbarsBRD.back();
        CHECK(toolbar.eagHND == board);
        CHECK((toolbar.hWnd() == platform::HWND::none || isWhole(toolbar)));
        CHECK(form.calculators.back()->windowsMade());
        tick();
        CHECK(form.toolbarsBRD.size() == entry + 1);
        closeBoard(board);
    }

    World world;
    core::Hauptform form;
    platform::HWND first = platform::HWND::none;
};

/// One for all boards: the first one makes them, and they go with the last.
constexpr std::string_view ofFirstBoard = "CreateFontIndirectA";
/// Of no board: icons of pictures stand on the buttons of dialogs, and what has a colour of its own stands in
/// these, too.
constexpr std::string_view ofDialogs[] = {"CreateIconIndirect", "CreateSolidBrush"};
/// Of the buttons of a toolbar, each time that they are made. The surface that icons are drawn on stays.
constexpr std::string_view ofButtons[] = {"PrivateExtractIconsW", "CreateIconFromResourceEx",
                                          "ImageList_Create",     "ImageList_Add",
                                          "CreateDIBSection",     "CreateBitmap"};

} // namespace

TEST_SUITE_BEGIN("contract/windows/limits");

TEST_CASE("a creation that fails, whichever and from whichever call on, leaves no half-made toolbar") {
    Tracking program;
    REQUIRE(Tracking::isWhole(*program.form.toolbarsBRD.front()));
    platform::HWND whole = platform::HWND::none;
    const auto calls = contract::creationsOf([&] { whole = program.openBoard(); });
    REQUIRE(Tracking::isWhole(*program.form.toolbarsBRD.back()));
    program.closeBoard(whole);
    for (const auto& [function, count] : calls) {
        if (function == ofFirstBoard || std::ranges::find(ofDialogs, function) != std::end(ofDialogs))
            continue;
        CHECK_MESSAGE(count > 0, function);
        for (int left = 0; left < count; ++left) {
            program.openRefused(function, left);
            CHECK(Tracking::isWhole(*program.form.toolbarsBRD.front()));
        }
    }
    const platform::HWND later = program.openBoard();
    CHECK(Tracking::isWhole(*program.form.toolbarsBRD.back()));
    CHECK(platform::HWND{reinterpret_cast<std::uintptr_t>(
              GetParent(reinterpret_cast<HWND>(program.form.toolbarsBRD.back()->hWnd())))} == later);
}

TEST_CASE("fonts that are refused are those of the system, and the next board has its own") {
    Tracking program;
    const auto fontOfUnits = [&] {
        forms::Label& label = program.form.calculators.back()->labUnit[0];
        return SendMessageA(win32::native(label.hWnd()), WM_GETFONT, 0, 0);
    };
    program.closeBoard(program.first);
    platform::HWND board = platform::HWND::none;
    const int count = contract::creationsOf([&] { board = program.openBoard(); }).at(ofFirstBoard);
    REQUIRE(count > 0);
    CHECK(fontOfUnits() != 0);
    program.closeBoard(board);
    for (int left = 0; left < count; ++left)
        program.openRefused(ofFirstBoard, left);
    {
        const CreationLimit limit(ofFirstBoard, 0);
        program.openBoard();
    }
    CHECK(fontOfUnits() == 0);
    program.openBoard(); // while the one without stays open
    CHECK(fontOfUnits() != 0);
}

TEST_CASE("a toolbar that is built anew while the system makes nothing keeps its window and its buttons") {
    Tracking program;
    toolbars::frmToolbar& toolbar = *program.form.toolbarsBRD.front();
    for (const std::string_view function : ofButtons) {
        INFO(std::string(function));
        {
            const CreationLimit limit(function, 0);
            toolbar.loadVarBar();
            win32::servePending();
            CHECK(CreationLimit::met());
        }
        CHECK(toolbar.windowsMade());
        CHECK(toolbar.hWnd() != platform::HWND::none);
        CHECK(contract::ask(toolbar.toolbar, TB_BUTTONCOUNT) == 4);
        toolbar.loadVarBar();
        win32::servePending();
        CHECK(Tracking::isWhole(toolbar));
    }
}

TEST_CASE("a setup whose pictures or colours are refused opens and closes all the same") {
    const World world;
    for (const std::string_view function : ofDialogs) {
        CAPTURE(std::string(function));
        setup::frmSetup form;
        {
            const CreationLimit limit(function, 0);
            form.loadResources();
            form.setType(1);
            form.show();
            win32::servePending();
            RedrawWindow(win32::native(form.hWnd()), nullptr, nullptr,
                         RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
            CHECK(CreationLimit::met());
        }
        CHECK(form.windowsMade());
        CHECK(form.visible());
        form.unload();
    }
}

TEST_CASE("a dialog that gets no window takes the keyboard from nobody") {
    World world;
    const platform::HWND editor = world.openEditor();
    const contract::Guest guest(editor);
    const auto focus = [] {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(0, &info);
        return info.hwndFocus;
    };
    REQUIRE(World::until([&] { return GetAncestor(focus(), GA_ROOT) == win32::native(editor); }));
    const HWND field = focus();
    REQUIRE(contract::joined(editor));
    contract::Dialog dialog;
    const auto refused = [&] {
        const CreationLimit limit("CreateWindowExA", 0);
        dialog.showModal();
        return CreationLimit::met();
    };
    CHECK(refused());
    CHECK(focus() == field);
    contract::Dialog below;
    below.show();
    SetFocus(win32::native(below.field.hWnd()));
    REQUIRE(World::until([&] { return focus() == win32::native(below.field.hWnd()); }));
    CHECK(refused());
    CHECK(focus() == win32::native(below.field.hWnd()));
    CHECK(IsWindowEnabled(win32::native(below.hWnd())));
}

TEST_CASE("the clipboard is not emptied for what could not be put there, and works again afterwards") {
    World world;
    platform::clearClipboard();
    platform::setClipboardText("the user's");
    DestroyWindow(GetClipboardOwner()); // as before the first copy
    {
        const CreationLimit limit("CreateWindowExA", 0);
        CHECK(runtime::errorOf([] { platform::clearClipboard(); }) == 521);
        CHECK(CreationLimit::met());
        CHECK(runtime::errorOf([] { platform::setClipboardText("new"); }) == 521);
        CHECK(platform::clipboardText() == "the user's");
    }
    CHECK(world.clipboardText() == "the user's");
    platform::clearClipboard();
    platform::setClipboardText("new");
    CHECK(world.clipboardText() == "new");
}

TEST_SUITE_END();
