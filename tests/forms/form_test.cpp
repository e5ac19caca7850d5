// Forms: loading, showing, unloading, and the sizes on both sides of the border.
#include "forms/form.h"

#include "desktop/desktop.h"
#include "forms/frame.h"
#include "forms/mainForm.h"
#include "forms/toolbar.h"
#include "platform/user32.h"

#include <doctest/doctest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

using forms::Form;
using platform::HWND;

namespace {

/// A form that writes down its events and does in them what the test says.
struct Noted : Form {
    Noted() {
        borderStyle = forms::BorderStyle::sizableToolWindow;
        setClientSize(1800, 300);
        setCaption("noted");
    }
    void note(const std::string& event, const std::function<void()>& then) {
        events.push_back(event);
        if (then)
            then();
    }
    void Form_Load() override { note("load", onLoad); }
    void Form_Resize() override { note("resize", onResize); }
    void Form_QueryUnload(bool& cancel) override {
        note("query", onQuery);
        cancel = refuse;
    }
    void Form_Unload() override { note("unload", onUnload); }

    std::vector<std::string> events;
    std::function<void()> onLoad;
    std::function<void()> onResize;
    std::function<void()> onQuery;
    std::function<void()> onUnload;
    bool refuse = false;
};

using Events = std::vector<std::string>;

desktop::World& desk() {
    return desktop::world();
}

} // namespace

TEST_SUITE_BEGIN("forms/form");

TEST_CASE("a form has no window before it is loaded and is not loaded by being made or sized") {
    const desktop::Session session;
    Noted form;
    CHECK_FALSE(form.loaded());
    CHECK_FALSE(form.visible());
    CHECK(form.hWnd() == HWND::none);
    form.setHeight(1500);
    CHECK(form.height() == 1500);
    CHECK_FALSE(form.loaded());
    CHECK(form.events.empty());
    CHECK(desk().order.empty());
}

TEST_CASE("asking for a form's window loads it: the window is made, then the load event is raised, once") {
    const desktop::Session session;
    Noted form;
    HWND inLoad = HWND::none;
    form.onLoad = [&] { inLoad = form.hWnd(); };
    const HWND window = form.window();
    CHECK(window != HWND::none);
    CHECK(inLoad == window);
    CHECK(form.window() == window);
    form.load();
    form.show();
    CHECK(form.events == Events{"load"});
    CHECK(desk().window(window).title == "noted");
}

TEST_CASE("the load event may ask for the window, resize and show the form") {
    const desktop::Session session;
    Noted form;
    form.onLoad = [&] {
        form.window();
        form.setWidth(3000);
        form.show();
    };
    form.load();
    CHECK(form.events == Events{"load", "resize"});
    CHECK(form.visible());
    CHECK(desk().window(form.hWnd()).visible);
}

TEST_CASE("a form that its load event unloads is not shown") {
    const desktop::Session session;
    Noted form;
    form.onLoad = [&] { form.unload(); };
    SUBCASE("shown without waiting") {
        form.show();
    }
    SUBCASE("shown modally") {
        desk().modalScripts.push_back([](Form&) { FAIL("a modal form that is not there"); });
        form.showModal();
    }
    CHECK_FALSE(form.loaded());
    CHECK_FALSE(form.visible());
    CHECK(form.events == Events{"load", "query", "unload"});
    CHECK(desk().order.empty());
}

TEST_CASE("unloading asks, tells and drops the window; the next use loads the form anew") {
    const desktop::Session session;
    Noted form;
    form.show();
    form.unload();
    CHECK(form.events == Events{"load", "query", "unload"});
    CHECK_FALSE(form.loaded());
    CHECK_FALSE(form.visible());
    CHECK(form.hWnd() == HWND::none);
    CHECK(desk().order.empty());
    form.unload();
    CHECK(form.events.size() == 3);
    form.show();
    CHECK(form.events.back() == "load");
    CHECK(desk().order.size() == 1);
}

TEST_CASE("the window still stands while the form is told of its unloading") {
    const desktop::Session session;
    Noted form;
    form.show();
    bool stood = false;
    form.onUnload = [&] { stood = platform::IsWindow(form.hWnd()) && form.visible() && form.loaded(); };
    form.unload();
    CHECK(stood);
}

TEST_CASE("a refused unload changes nothing") {
    const desktop::Session session;
    Noted form;
    form.refuse = true;
    form.show();
    const HWND window = form.hWnd();
    form.closeRequested();
    CHECK(form.events == Events{"load", "query"});
    CHECK(form.loaded());
    CHECK(form.visible());
    CHECK(form.hWnd() == window);
    form.refuse = false;
    form.closeRequested();
    CHECK_FALSE(form.loaded());
}

TEST_CASE("the program ends with its main form, but not if that refuses") {
    const desktop::Session session;
    Noted form;
    form.refuse = true;
    form.show();
    forms::Form* const before = std::exchange(forms::mainForm, &form);
    form.closeRequested();
    CHECK_FALSE(desk().ended);
    CHECK(form.loaded());
    form.refuse = false;
    CHECK_FALSE(desk().event([&] { form.closeRequested(); }));
    CHECK(desk().ended);
    forms::mainForm = before;
}

TEST_CASE("a form that has nothing to do with an event hears it without an effect") {
    const desktop::Session session;
    Noted form;
    form.show();
    form.Form_MouseMove(0, 0, 1, 1);
    form.Form_Click();
    form.Form_TaskbarCreated();
    CHECK(form.events == Events{"load"});
}

TEST_CASE("an unload inside the events of an unload does nothing further") {
    const desktop::Session session;
    Noted form;
    form.onQuery = [&] { form.unload(); };
    form.onUnload = [&] { form.unload(); };
    form.show();
    form.unload();
    CHECK(form.events == Events{"load", "query", "unload"});
    CHECK_FALSE(form.loaded());
}

TEST_CASE("an unload that ends in an error can be asked for again") {
    const desktop::Session session;
    Noted form;
    form.show();
    form.onQuery = [] { throw runtime::RuntimeError(runtime::ErrorNumber::typeMismatch); };
    CHECK_THROWS_AS(form.unload(), runtime::RuntimeError);
    form.onQuery = nullptr;
    form.unload();
    CHECK_FALSE(form.loaded());
}

TEST_CASE("a modal form holds its caller until it is hidden or unloaded") {
    const desktop::Session session;
    Noted form;
    SUBCASE("hidden") {
        desk().modalScripts.push_back([](Form& shown) {
            CHECK(shown.visible());
            shown.hide();
        });
        form.showModal();
        CHECK(form.loaded());
        CHECK_FALSE(desk().window(form.hWnd()).visible);
    }
    SUBCASE("unloaded") {
        desk().modalScripts.push_back([](Form& shown) { shown.unload(); });
        form.showModal();
        CHECK_FALSE(form.loaded());
    }
    CHECK(desk().modalScripts.empty());
    CHECK(desk().modalForms.empty());
}

TEST_CASE("a form that is destroyed takes its window along without being asked") {
    const desktop::Session session;
    Events seen;
    {
        Noted form;
        form.show();
        form.refuse = true;
        form.onQuery = [&] { seen.push_back("query"); };
        form.onUnload = [&] { seen.push_back("unload"); };
    }
    CHECK(seen.empty());
    CHECK(desk().order.empty());
}

TEST_CASE("the outer size is the client size and the frame") {
    const desktop::Session session;
    Noted form;
    const forms::FrameExtent frame = forms::frameExtent(form);
    CHECK(form.scaleWidth() == 1800);
    CHECK(form.scaleHeight() == 300);
    CHECK(form.width() == 1800 + static_cast<float>(frame.width) * 15);
    CHECK(form.height() == 300 + static_cast<float>(frame.height) * 15);
    const float outside = form.height() - form.scaleHeight();
    form.setHeight(form.height() + 330);
    CHECK(form.scaleHeight() == 630);
    CHECK(form.height() - form.scaleHeight() == outside);
    form.load();
    form.setHeight(form.height() + 330);
    CHECK(form.scaleHeight() == 960);
    CHECK(form.height() - form.scaleHeight() == outside);
}

TEST_CASE("an assigned size moves the window's frame and raises the resize event inside the assignment") {
    const desktop::Session session;
    Noted form;
    form.load();
    float seen = 0;
    form.onResize = [&] { seen = form.scaleHeight(); };
    form.setHeight(form.height() + 150);
    CHECK(form.events == Events{"load", "resize"});
    CHECK(seen == 450);
    platform::RECT rect;
    REQUIRE(platform::GetWindowRect(form.hWnd(), rect));
    CHECK(static_cast<float>(rect.bottom - rect.top) * 15 == form.height());
    form.setClientSize(1500, 450);
    CHECK(form.events.size() == 3);
    CHECK(form.scaleWidth() == 1500);
}

TEST_CASE("a size that is the same in whole pixels raises nothing") {
    const desktop::Session session;
    Noted form;
    form.load();
    form.setHeight(form.height());
    form.setHeight(form.height() + 7);
    form.setWidth(form.width() - 7);
    CHECK(form.events == Events{"load"});
    form.setHeight(form.height() + 8);
    CHECK(form.events == Events{"load", "resize"});
    CHECK(form.scaleHeight() == 315);
}

TEST_CASE("a resize event that assigns a height ends with the assignment of the same height") {
    const desktop::Session session;
    Noted form;
    form.load();
    form.onResize = [&] { form.setHeight(1000); };
    form.setWidth(form.width() - 300);
    CHECK(form.events == Events{"load", "resize", "resize"});
    CHECK(form.height() == 1005);
}

TEST_CASE("a size below 0 is none, and a size of one twip is no pixel") {
    const desktop::Session session;
    Noted form;
    form.borderStyle = forms::BorderStyle::none;
    form.setClientSize(3000, 375);
    form.show();
    form.setWidth(1);
    CHECK(form.width() == 0);
    CHECK(form.scaleWidth() == 0);
    form.setHeight(-500);
    CHECK(form.height() == 0);
    form.unload();
    form.setWidth(-500);
    CHECK(form.width() == 0);
}

TEST_CASE("a size below that of the frame leaves no client area; the resize event is raised all the same") {
    const desktop::Session session;
    Noted form;
    form.setHeight(150);
    CHECK(form.scaleHeight() == 0);
    form.load();
    form.setHeight(180);
    CHECK(form.height() == 180);
    CHECK(form.scaleHeight() == 0);
    CHECK(form.events == Events{"load", "resize"});
    form.windowResized(5, 5, -3, -21);
    CHECK(form.scaleHeight() == 0);
    CHECK(form.scaleWidth() == 0);
}

TEST_CASE("a size that the window insists on while it is being made is taken over without an event") {
    /// Stands for a window that reports its size as soon as it is made.
    struct Insistent : forms::Frame {
        void makePeers() override { form()->windowResized(200, 100, 180, 74); }
    };
    const desktop::Session session;
    Noted form;
    Insistent insistent;
    insistent.place(form, {});
    form.load();
    CHECK(form.events == Events{"load"});
    CHECK(form.width() == 3000);
    CHECK(form.scaleHeight() == 1110);
}

TEST_CASE("the user's dragging of the frame raises the resize event, once for each new size") {
    const desktop::Session session;
    Noted form;
    form.show();
    const desktop::Window window = desk().window(form.hWnd());
    const int width = window.rect.right - window.rect.left;
    const int height = window.rect.bottom - window.rect.top;
    desk().resizeWindow(form.hWnd(), width - 20, height);
    CHECK(form.events == Events{"load", "resize"});
    CHECK(form.scaleWidth() == 1500);
    form.windowResized(width - 20, height, 100, 20);
    CHECK(form.events.size() == 2);
}

TEST_CASE("aligned toolbars have the new width before the resize event is raised") {
    const desktop::Session session;
    Noted form;
    forms::Toolbar toolbar;
    toolbar.place(form, {0, 0, 100, 330});
    forms::Toolbar loose;
    loose.alignTop = false;
    loose.place(form, {0, 600, 750, 0});
    CHECK(toolbar.width() == 1800);
    form.load();
    float seen = 0;
    form.onResize = [&] { seen = toolbar.width(); };
    form.setWidth(form.width() - 300);
    CHECK(seen == 1500);
    CHECK(loose.width() == 750);
    CHECK(loose.top() == 600);
}

TEST_CASE("a form that its resize event unloads leaves nothing behind") {
    const desktop::Session session;
    Noted form;
    forms::Frame frame;
    frame.place(form, {});
    form.show();
    // The window is reporting its size: it stands until it has returned.
    bool stood = false;
    form.onResize = [&, window = form.hWnd()] {
        form.unload();
        stood = platform::IsWindow(window);
    };
    form.setWidth(form.width() + 150);
    CHECK(stood);
    CHECK_FALSE(form.loaded());
    CHECK(desk().order.empty());
    CHECK(form.peer() == nullptr);
    CHECK(frame.peer() == nullptr);
}

TEST_CASE("a form whose host has died lives on without a window") {
    const desktop::Session session;
    Noted form;
    form.show();
    const HWND host = desk().openWindow("Board - x");
    platform::SetParent(form.hWnd(), host);
    desk().closeWindow(host);
    CHECK(form.hWnd() == HWND::none);
    CHECK(form.window() == HWND::none);
    CHECK(form.loaded());
    form.setHeight(3000);
    CHECK(form.height() == 3000);
    form.setLeft(75);
    form.setCaption("dead");
    form.setFocus();
    form.hide();
    CHECK(form.events == Events{"load"});
    form.unload();
    CHECK_FALSE(form.loaded());
}

TEST_CASE("a hosted form keeps its place when its height is assigned") {
    const desktop::Session session;
    Noted form;
    form.show();
    const HWND host = desk().openWindow("Board - x");
    platform::SetParent(form.hWnd(), host);
    platform::MoveWindow(form.hWnd(), 800, 21, 128, 46, true);
    form.windowMoved(800, 21);
    CHECK(form.left() == 12000);
    CHECK(form.top() == 315);
    form.setHeight(1500);
    const platform::RECT rect = desk().window(form.hWnd()).rect;
    CHECK(rect.left == 800);
    CHECK(rect.top == 21);
    CHECK(rect.bottom == 121);
}

TEST_CASE("a size that the window refuses leaves the old one") {
    const desktop::Session session;
    Noted form;
    form.load();
    const float height = form.height();
    desk().window(form.hWnd()).resized = nullptr;
    form.setHeight(height + 300);
    CHECK(form.height() == height);
    CHECK(form.scaleHeight() == 300);
    CHECK(form.events == Events{"load"});
}

TEST_SUITE_END();
