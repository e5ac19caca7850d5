// Hosts on screens of other resolutions than 96 dpi, each seen by the host's program in its own way.
#include "core/running.h"
#include "desktop/faults.h"
#include "desktop/program.h"
#include "platform/user32.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <string>

using desktop::Awareness;
using platform::HWND;
using platform::RECT;
using store::EditorKind;

namespace {

struct OnScreens : Running {
    OnScreens() { store::unitCalcActive = 1; }

    /// A host of this width in the pixels that it sees.
    HWND open(Awareness awareness, int width, std::size_t screen = 0) {
        const HWND host = desk().openWindow("Board - x.brd - EAGLE", {0, 0, width, 700});
        desk().window(host).awareness = awareness;
        desk().window(host).screen = screen;
        return host;
    }
    const desktop::Window& bar() { return desk().window(toolbar(EditorKind::board, 1).window()); }
    const desktop::Window& calculator() { return desk().window(form().calculators.at(1)->fraMil.hWnd()); }
    int barWidth() { return bar().rect.right - bar().rect.left; }
};

} // namespace

TEST_SUITE_BEGIN("core/screens");

TEST_CASE("a host that knows its screen of 144 dpi has everything half as large again, in its own pixels") {
    OnScreens program;
    program.desk().screens = {{144}};
    const HWND host = program.open(Awareness::perMonitor, 1536);
    program.ticks(1);
    CHECK(program.bar().parent == host);
    CHECK(program.bar().awareness == Awareness::perMonitor);
    // 1800 twips are 180 pixels, 12 are the frame's.
    CHECK(program.barWidth() == 192);
    CHECK(program.bar().rect.left == 1536 - 192 - 38);
    CHECK(program.bar().rect.top == 32);
    // 15360 twips less 3000, at 10 a pixel; 292 and a half pixels wide and 27 high.
    CHECK(program.calculator().parent == host);
    CHECK(program.calculator().rect == RECT{1236, 0, 1236 + 293, 27});
    CHECK(program.desk().awarenessResets == 0);
    CHECK(program.desk().awareness == Awareness::perMonitor);
}

TEST_CASE("in a host that knows of no such screens all is as at 96 dpi") {
    OnScreens program;
    program.desk().screens = {{144}};
    program.open(Awareness::unaware, 1024);
    program.ticks(1);
    CHECK(program.barWidth() == 128);
    CHECK(program.bar().rect.left == 1024 - 128 - 25);
    CHECK(program.bar().rect.top == 21);
    CHECK(program.calculator().rect == RECT{824, 0, 824 + 195, 18});
    CHECK(program.desk().awarenessResets == 0);
}

TEST_CASE("a host that knows the main screen alone is served by that, wherever it stands") {
    OnScreens program;
    program.desk().screens = {{144}, {192}};
    SUBCASE("on the main screen") {
        program.open(Awareness::system, 1536);
    }
    SUBCASE("on a finer one") {
        program.open(Awareness::system, 1536, 1);
    }
    program.ticks(1);
    CHECK(program.bar().rect.left == 1536 - 192 - 38);
    CHECK(program.calculator().rect.left == 1236);
    CHECK(program.desk().awarenessResets == 0);
}

TEST_CASE("toolbar and calculator stand to each other as at 96 dpi on every screen and in every host") {
    struct Row {
        int dpi;
        int barWidth;
        int gap;
        int top;
    };
    for (const Row& row :
         {Row{96, 128, 25, 21}, Row{120, 160, 31, 26}, Row{144, 192, 38, 32}, Row{168, 224, 44, 37},
          Row{192, 256, 50, 42}, Row{240, 320, 63, 53}, Row{480, 640, 125, 105}})
        for (const Awareness awareness : {Awareness::system, Awareness::perMonitor}) {
            CAPTURE(row.dpi);
            OnScreens program;
            program.desk().screens = {{row.dpi}};
            const int width = 1024 * row.dpi / 96;
            program.open(awareness, width);
            program.ticks(1);
            CHECK(program.barWidth() == row.barWidth);
            CHECK(program.bar().rect.left == width - row.barWidth - row.gap);
            CHECK(program.bar().rect.top == row.top);
            CHECK(program.calculator().rect.left == 824 * row.dpi / 96);
            CHECK(program.calculator().rect.bottom <= row.top);
            CHECK(program.desk().awarenessResets == 0);
        }
    for (const int dpi : {96, 120, 144, 168, 192, 240, 480}) {
        CAPTURE(dpi);
        OnScreens program;
        program.desk().screens = {{dpi}};
        program.open(Awareness::unaware, 1024);
        program.ticks(1);
        CHECK(program.bar().rect.left == 1024 - 128 - 25);
        CHECK(program.bar().rect.top == 21);
        CHECK(program.barWidth() == 128);
        CHECK(program.calculator().rect == RECT{824, 0, 824 + 195, 18});
        CHECK(program.desk().awarenessResets == 0);
    }
}

TEST_CASE("hosts of every view stand side by side, and the program keeps its own") {
    OnScreens program;
    program.desk().screens = {{144}};
    const HWND unaware = program.desk().openWindow("Board - x.brd - EAGLE", {0, 0, 1024, 700});
    const HWND aware = program.desk().openWindow("Schematic - x.sch - EAGLE", {0, 0, 1536, 1050});
    program.desk().window(aware).awareness = Awareness::perMonitor;
    program.ticks(3);
    CHECK(program.bar().parent == unaware);
    CHECK(program.barWidth() == 128);
    const desktop::Window& other = program.desk().window(program.toolbar(EditorKind::schematic, 1).window());
    CHECK(other.parent == aware);
    CHECK(other.rect.right - other.rect.left == 192);
    CHECK(program.desk().awarenessResets == 0);
    CHECK(program.desk().awareness == Awareness::perMonitor);
}

TEST_CASE("the calculator follows the host in its pixels on each tick") {
    OnScreens program;
    program.desk().screens = {{144}};
    const HWND host = program.open(Awareness::perMonitor, 1536);
    program.ticks(1);
    program.desk().resizeWindow(host, 1200, 900);
    program.ticks(1);
    CHECK(program.calculator().rect.left == 1200 - 300);
    program.desk().resizeWindow(host, 1000, 900);
    program.ticks(1);
    CHECK(program.calculator().rect.left == 1050 - 300);
}

TEST_CASE("a toolbar that the user resizes speaks of the host in its pixels") {
    OnScreens program;
    program.desk().screens = {{144}};
    const HWND host = program.open(Awareness::perMonitor, 1536);
    program.ticks(1);
    program.desk().calls.clear();
    program.desk().resizeWindow(program.bar().handle, 300, 100);
    // The client area, without the host's frame of 4 pixels at each side and 23 at the top.
    CHECK(program.desk().calls.back() ==
          "RedrawWindow " + std::to_string(static_cast<std::uintptr_t>(host)) + " 1528 673 389");
}

TEST_CASE(
    "a toolbar follows its host to another screen with the next tick and keeps its place, scaled once") {
    OnScreens program;
    program.desk().screens = {{96}, {144}};
    const HWND host = program.open(Awareness::perMonitor, 1024);
    program.ticks(1);
    // Where the user has dragged it.
    platform::MoveWindow(program.bar().handle, 400, 100, 128, 48, true);
    const int height = program.bar().rect.bottom - program.bar().rect.top;
    program.desk().window(host).screen = 1;
    program.desk().resizeWindow(host, 1536, 1050);
    program.ticks(1);
    CHECK(program.bar().rect.left == 600);
    CHECK(program.bar().rect.top == 150);
    CHECK(program.barWidth() == 192);
    CHECK(program.bar().rect.bottom - program.bar().rect.top == 33 + 39);
    CHECK(program.calculator().rect == RECT{1236, 0, 1236 + 293, 27});
    CHECK(program.toolbar(EditorKind::board, 1).ImageList1.pictureWidth() == 24);
    const RECT there = program.bar().rect;
    program.ticks(3);
    CHECK(program.bar().rect == there);
    program.desk().window(host).screen = 0;
    program.desk().resizeWindow(host, 1024, 700);
    program.ticks(1);
    CHECK(program.bar().rect == RECT{400, 100, 528, 100 + height});
    CHECK(program.calculator().rect == RECT{824, 0, 824 + 195, 18});
    CHECK(program.desk().awarenessResets == 0);
}

TEST_CASE("on its new screen a toolbar shows the pictures of one that was made there") {
    OnScreens program;
    program.desk().writeSettings("[Unit]\nVisible=1\n[board]\n1name=a\n1path=a\n1dialog=0\n1type=1\n"
                                 "2name=b\n2path=b\n2dialog=0\n2type=1\n2icon=C:\\x.exe,0\n");
    program.desk().addIcons("C:\\x.exe", 1);
    program.desk().screens = {{96}, {144}};
    const HWND host = program.open(Awareness::perMonitor, 1024);
    program.ticks(1);
    program.desk().window(host).screen = 1;
    program.ticks(1);
    program.open(Awareness::perMonitor, 1536, 1);
    program.ticks(1);
    const toolbars::frmToolbar& moved = program.toolbar(EditorKind::board, 1);
    const toolbars::frmToolbar& made = program.toolbar(EditorKind::board, 2);
    REQUIRE(moved.ImageList1.count() == 4);
    REQUIRE(made.ImageList1.count() == 4);
    for (int number = 1; number <= 4; ++number) {
        CHECK(moved.ImageList1.picture(number).width() == 24);
        CHECK(moved.ImageList1.picture(number) == made.ImageList1.picture(number));
    }
    CHECK(moved.toolbar.buttons().size() == 3);
}

TEST_CASE("on its new screen a toolbar has room for a list that has grown meanwhile") {
    const auto rows = [](int count) {
        std::string text = "[board]\n";
        for (int row = 1; row <= count; ++row)
            for (const char* line : {"name=a\n", "path=a\n", "dialog=0\n", "type=1\n"})
                text += std::to_string(row) + line;
        return text;
    };
    OnScreens program;
    program.desk().writeSettings(rows(1));
    program.desk().screens = {{96}, {144}};
    const HWND host = program.open(Awareness::perMonitor, 1024);
    program.ticks(1);
    const toolbars::frmToolbar& moved = program.toolbar(EditorKind::board, 1);
    // One that is made later reads the list anew; this one keeps its buttons.
    program.desk().writeSettings(rows(12));
    const HWND other = program.open(Awareness::perMonitor, 1024);
    program.ticks(1);
    program.desk().closeWindow(other);
    REQUIRE(moved.toolbar.buttons().size() == 2);
    program.desk().window(host).screen = 1;
    program.ticks(1);
    CHECK(moved.toolbar.buttons().size() == 13);
    CHECK(moved.toolbar.height() == 990);
    CHECK(moved.scaleHeight() == 990);
}

TEST_CASE("a toolbar without a calculator follows its host alone") {
    OnScreens program;
    store::unitCalcActive = 0;
    program.desk().screens = {{96}, {144}};
    const HWND host = program.open(Awareness::perMonitor, 1024);
    program.ticks(1);
    REQUIRE(program.toolbar(EditorKind::board, 1).milIndex == 0);
    program.desk().window(host).screen = 1;
    program.ticks(1);
    CHECK(program.toolbar(EditorKind::board, 1).ImageList1.pictureWidth() == 24);
    CHECK(program.form().calculators.size() == 1);
}

TEST_CASE("a toolbar keeps its width through changes of screens that leave its frame as it is") {
    OnScreens program;
    program.desk().framesOfMainScreen = true;
    program.desk().screens = {{96}, {144}};
    const HWND host = program.open(Awareness::perMonitor, 1024);
    program.ticks(1);
    const RECT before = program.bar().rect;
    for (int trip = 1; trip <= 3; ++trip) {
        CAPTURE(trip);
        program.desk().window(host).screen = 1;
        program.ticks(1);
        // 180 pixels and the frame's 8 of 96 dpi.
        CHECK(program.barWidth() == 188);
        CHECK(program.toolbar(EditorKind::board, 1).scaleWidth() == 1800);
        program.desk().window(host).screen = 0;
        program.ticks(1);
        CHECK(program.bar().rect == before);
    }
}

TEST_CASE("a host that knows no other screens is not followed") {
    for (const Awareness awareness : {Awareness::unaware, Awareness::system}) {
        OnScreens program;
        program.desk().screens = {{96}, {144}};
        const HWND host = program.open(awareness, 1024);
        program.ticks(1);
        const RECT before = program.bar().rect;
        program.desk().window(host).screen = 1;
        program.ticks(2);
        CHECK(program.bar().rect == before);
    }
}

TEST_CASE("a host whose resolution changes while its toolbar is built is followed with the next tick") {
    for (const char* moment : {"SetWindowPos", "SetParent", "MoveWindow", "RedrawWindow"}) {
        CAPTURE(moment);
        OnScreens program;
        program.desk().screens = {{144}};
        program.open(Awareness::perMonitor, 1536);
        program.desk().onCall = [&](const std::string& call) {
            if (call.starts_with(moment))
                program.desk().screens = {{192}};
        };
        program.ticks(2);
        CHECK(program.toolbar(EditorKind::board, 1).resolution().dpi() == 192);
        CHECK(program.barWidth() == 256);
        CHECK(program.bar().rect.bottom - program.bar().rect.top == 44 + 52);
        CHECK(program.calculator().rect.bottom == 36);
        CHECK(program.desk().awarenessResets == 0);
    }
}

TEST_CASE("a host that dies while its toolbar is built leaves the program in its own view") {
    for (const char* moment : {"SetWindowPos", "SetParent", "MoveWindow", "RedrawWindow"}) {
        CAPTURE(moment);
        OnScreens program;
        program.desk().screens = {{144}};
        const HWND host = program.open(Awareness::perMonitor, 1536);
        program.desk().onCall = [&](const std::string& call) {
            if (call.starts_with(moment))
                program.desk().closeWindow(host);
        };
        program.ticks(3);
        CHECK(program.desk().awareness == Awareness::perMonitor);
        CHECK(program.desk().awarenessResets == 0);
        CHECK(program.desk().messageBoxes.empty());
        CHECK_FALSE(program.desk().ended);
    }
}

TEST_CASE("a resolution that no screen has counts as the nearest that there is") {
    for (const int dpi : {0, 1, 95}) {
        CAPTURE(dpi);
        OnScreens program;
        program.open(Awareness::perMonitor, 1024);
        program.desk().screens = {{dpi}};
        program.ticks(1);
        CHECK(program.toolbar(EditorKind::board, 1).resolution().dpi() == 96);
        CHECK(program.barWidth() == 128);
    }
}

TEST_CASE("a calculator's own form, empty beside its host, is no pixel wide on the finest screen either") {
    OnScreens program;
    program.desk().screens = {{480}};
    program.open(Awareness::perMonitor, 5120);
    program.ticks(1);
    CHECK(program.form().calculators.at(1)->resolution().dpi() == 480);
    const RECT form = program.desk().window(program.form().calculators.at(1)->hWnd()).rect;
    CHECK(form.right == form.left);
}

TEST_CASE("a host whose resolution was not told when its toolbar was made is asked again") {
    std::string failed;
    for (int call = 1; failed != "dpiOf"; ++call) {
        OnScreens program;
        program.desk().screens = {{144}};
        program.open(Awareness::perMonitor, 1536);
        desktop::faults().watch(call);
        program.ticks(1);
        desktop::faults().stop();
        failed = desktop::faults().failed();
        REQUIRE(failed != "");
        if (failed != "dpiOf")
            continue;
        CHECK(program.barWidth() == 192);
        CHECK(program.calculator().rect == RECT{1236, 0, 1236 + 293, 27});
    }
}

TEST_SUITE_END();
