// The toolbar form's own behaviour in its host: height, raising, redraw.
#include "desktop/program.h"
#include "forms/toolbarLayout.h"

#include <doctest/doctest.h>

#include <string>

using desktop::Program;
using platform::HWND;
using store::EditorKind;

namespace {

std::string rows(const char* section, int count) {
    std::string text = std::string("[") + section + "]\r\n";
    for (int row = 1; row <= count; ++row) {
        const std::string number = std::to_string(row);
        text +=
            number + "name=b\r\n" + number + "path=p\r\n" + number + "dialog=0\r\n" + number + "type=1\r\n";
    }
    return text;
}

/// A toolbar with so many buttons of its own beside "Config".
struct Host : Program {
    explicit Host(int buttons, EditorKind editorKind = EditorKind::board) : kind(editorKind) {
        static const char* const titles[] = {"Board - x.brd - EAGLE", "Schematic - x.sch - EAGLE",
                                             "Library - x.lbr - EAGLE"};
        desk().startProcess("eagle.exe");
        desk().writeSettings(rows(store::listOf(kind).section, buttons));
        REQUIRE(start());
        host = desk().openWindow(titles[static_cast<int>(kind)]);
        ticks(1);
        handle = form().window();
        desk().calls.clear();
    }
    toolbars::frmToolbar& form() { return toolbar(kind, 1); }
    int height() {
        const platform::RECT& rect = desk().window(handle).rect;
        return rect.bottom - rect.top;
    }
    /// Drags a frame, as the user does: the window gets another outer size in pixels.
    void drag(int width, int newHeight) {
        desk().event([&] { desk().resizeWindow(handle, width, newHeight); });
    }

    EditorKind kind;
    HWND host;
    HWND handle;
};

constexpr int frameHeight = 26;
constexpr int frameWidth = 8;
constexpr int rowHeight = 22;

} // namespace

TEST_SUITE_BEGIN("toolbars/window");

TEST_CASE("the form is just high enough for its rows of buttons") {
    for (const auto& [buttons, expected] : {std::pair{0, 1}, std::pair{4, 1}, std::pair{5, 2},
                                            std::pair{9, 2}, std::pair{10, 3}, std::pair{99, 20}}) {
        Host bar(buttons);
        CHECK(bar.height() == expected * rowHeight + frameHeight);
    }
}

TEST_CASE("a form made narrower grows in height, made wider it shrinks") {
    Host bar(5);
    bar.drag(46 + frameWidth, bar.height());
    CHECK(bar.height() == 3 * rowHeight + frameHeight);
    bar.drag(6 * 23 + frameWidth, bar.height());
    CHECK(bar.height() == rowHeight + frameHeight);
}

TEST_CASE("a form narrower than a button has one button in each row") {
    Host bar(2);
    bar.drag(10 + frameWidth, bar.height());
    CHECK(bar.height() == 3 * rowHeight + frameHeight);
}

TEST_CASE("dragging the top or bottom frame changes nothing lasting") {
    Host bar(4);
    bar.drag(120 + frameWidth, 500);
    CHECK(bar.height() == rowHeight + frameHeight);
    bar.drag(120 + frameWidth, 5);
    CHECK(bar.height() == rowHeight + frameHeight);
}

TEST_CASE("the Config button wraps with the rest, as the last item of the last row") {
    Host bar(5);
    const forms::ToolbarLayout layout = forms::layoutToolbar(bar.form().toolbar.buttons(), 120);
    CHECK(layout.height == 2 * rowHeight);
    CHECK(layout.places.back().top == rowHeight);
    CHECK(layout.places.back().left == 0);
    CHECK(bar.form().toolbar.buttons().back().key == "Config");
}

TEST_CASE("the resize neither moves the form nor changes its width") {
    Host bar(12);
    const platform::RECT before = bar.desk().window(bar.handle).rect;
    bar.desk().event([&] { bar.form().Form_Resize(); });
    CHECK(bar.desk().window(bar.handle).rect == before);
}

TEST_CASE("the height is set while the form is out of the host, with drawing off, in the stated order") {
    Host bar(4);
    bar.desk().event([&] { bar.form().Form_Resize(); });
    const std::string form = std::to_string(static_cast<std::uintptr_t>(bar.handle));
    const std::string host = std::to_string(static_cast<std::uintptr_t>(bar.host));
    const std::vector<std::string> expected = {
        "SetWindowPos " + host + " 0 0 0 0 0 3",  "SendMessage " + host + " 11 0 0",
        "SendMessage " + form + " 11 0 0",        "SetParent " + form + " 0",
        "SetParent " + form + " " + host,         "SendMessage " + form + " 11 -1 0",
        "RedrawWindow " + form + " 120 22 389",   "SendMessage " + host + " 11 -1 0",
        "RedrawWindow " + host + " 1016 741 389",
    };
    CHECK(bar.desk().calls == expected);
}

TEST_CASE("a height that really changes runs the resize once more inside, and drawing is on afterwards") {
    Host bar(4);
    bar.drag(120 + frameWidth, 300);
    CHECK(bar.height() == rowHeight + frameHeight);
    CHECK(bar.desk().window(bar.host).redraw);
    CHECK(bar.desk().window(bar.handle).redraw);
    CHECK(bar.desk().window(bar.handle).parent == bar.host);
    int resizes = 0;
    for (const std::string& call : bar.desk().calls)
        if (call.starts_with("SetWindowPos"))
            ++resizes;
    CHECK(resizes == 2);
}

TEST_CASE("the mouse over the form or its toolbar raises the form among the host's children") {
    Host bar(4);
    desktop::Window other;
    other.parent = bar.host;
    const HWND sibling = bar.desk().addWindow(other);
    REQUIRE(bar.desk().window(bar.host).children.front() == sibling);
    bar.desk().event([&] { bar.form().toolbar.onMouseMove(0, 0, 10, 10); });
    CHECK(bar.desk().window(bar.host).children.front() == bar.handle);
    bar.desk().raise(sibling);
    bar.desk().event([&] { bar.form().Form_MouseMove(0, 0, 10, 10); });
    CHECK(bar.desk().window(bar.host).children.front() == bar.handle);
    // Never always-on-top.
    for (const std::string& call : bar.desk().calls)
        CHECK(call.find(" -1 0 0 0 0 3") == std::string::npos);
}

TEST_CASE("the toolbar is as wide as the client area") {
    Host bar(4);
    bar.drag(300 + frameWidth, 48);
    CHECK(bar.form().toolbar.width() == 4500);
    CHECK(bar.form().scaleWidth() == 4500);
}

TEST_CASE("the resize of a form whose host has gone fails silently") {
    Host bar(4);
    bar.desk().closeWindow(bar.host);
    CHECK(bar.desk().event([&] { bar.form().Form_Resize(); }));
    CHECK(bar.desk().event([&] { bar.form().loadVarBar(); }));
    CHECK(bar.desk().event([&] { bar.form().Form_MouseMove(0, 0, 0, 0); }));
}

TEST_CASE("a board toolbar that is built anew keeps its height until the next resize, the others do not") {
    for (const auto& [kind, expected] : {std::pair{EditorKind::board, 1}, std::pair{EditorKind::schematic, 3},
                                         std::pair{EditorKind::library, 3}}) {
        Host bar(0, kind);
        REQUIRE(bar.height() == rowHeight + frameHeight);
        bar.desk().writeSettings(rows(store::listOf(kind).section, 12));
        bar.desk().modalScripts.push_back([](forms::Form& setup) { setup.unload(); });
        bar.desk().event([&] { bar.form().toolbar.clickButton(0); });
        CHECK(bar.height() == expected * rowHeight + frameHeight);
        bar.desk().event([&] { bar.form().Form_Resize(); });
        CHECK(bar.height() == 3 * rowHeight + frameHeight);
    }
}

TEST_CASE("a new toolbar refreshes the list for its siblings without rebuilding their buttons") {
    Host bar(2);
    bar.desk().writeSettings(rows("board", 3));
    bar.desk().openWindow("Board - y.brd - EAGLE");
    bar.ticks(1);
    CHECK(store::boardButtons.upperBound() == 3);
    CHECK(bar.toolbar(EditorKind::board, 2).toolbar.buttons().size() == 4);
    CHECK(bar.toolbar(EditorKind::board, 1).toolbar.buttons().size() == 3);
}

TEST_CASE("the shells of the three forms") {
    for (const auto& [kind, clientHeight] :
         {std::pair{EditorKind::board, 300.0F}, std::pair{EditorKind::schematic, 345.0F},
          std::pair{EditorKind::library, 300.0F}}) {
        desktop::Session session;
        toolbars::frmToolbar form(kind);
        CHECK(form.caption() == "EAGLE Kestrel Bench");
        CHECK(form.borderStyle == forms::BorderStyle::sizableToolWindow);
        CHECK_FALSE(form.showInTaskbar);
        CHECK_FALSE(form.activates);
        CHECK(form.Picture1.position() == forms::Position{0, 0, 270, 270});
        CHECK(form.Picture2.position() == forms::Position{0, 0, 270, 270});
        CHECK_FALSE(form.Picture1.visible());
        CHECK_FALSE(form.Picture2.visible());
        CHECK(form.scaleWidth() == 1800);
        CHECK(form.scaleHeight() == clientHeight);
        CHECK(form.eagHND == HWND::none);
        CHECK(form.milIndex == 0);
    }
}

TEST_SUITE_END();
