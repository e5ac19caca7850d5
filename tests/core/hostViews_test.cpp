// The program sees the screen as a host does for as long as it speaks of that host's pixels; and what may
// come in between while it builds a toolbar, or has one out of its host for a moment.
#include "core/running.h"
#include "desktop/faults.h"
#include "desktop/program.h"
#include "platform/user32.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

using desktop::Awareness;
using platform::HWND;
using platform::RECT;
using store::EditorKind;

namespace {

constexpr Awareness allViews[] = {Awareness::unaware, Awareness::system, Awareness::perMonitor};

struct InViews : Running {
    InViews() { store::unitCalcActive = 1; }

    HWND open(Awareness awareness, int width = 1536, std::size_t screen = 0) {
        const HWND host = desk().openWindow("Board - x.brd - EAGLE", {0, 0, width, 700});
        desk().window(host).awareness = awareness;
        desk().window(host).screen = screen;
        return host;
    }
    toolbars::frmToolbar& form() { return toolbar(EditorKind::board, 1); }
    const desktop::Window& bar() { return desk().window(form().window()); }
    const desktop::Window& calculator() {
        return desk().window(Program::form().calculators.at(1)->fraMil.hWnd());
    }
};

/// Calls that have coordinates of a host among what they are given or lead to.
bool speaksOfPixels(const std::string& call) {
    return call.starts_with("SetParent") || call.starts_with("MoveWindow") ||
           call.starts_with("RedrawWindow");
}

/// Lets something happen at the beginning of a call of the platform, by its number from 1.
class AtCall {
  public:
    AtCall(int number, const std::function<void()>& what) {
        desktop::faults().onCall = [this, number, what](const std::string&) {
            if (++calls_ == number)
                what();
        };
    }
    ~AtCall() { desktop::faults().onCall = nullptr; }
    AtCall(const AtCall&) = delete;
    AtCall& operator=(const AtCall&) = delete;

    int calls() const { return calls_; }

  private:
    int calls_ = 0;
};

} // namespace

TEST_SUITE_BEGIN("core/hostViews");

TEST_CASE("from the making of a toolbar to the placing of its calculator the program sees as the host") {
    for (const Awareness own : allViews)
        for (const Awareness host : allViews) {
            InViews program;
            program.desk().awareness = own;
            program.desk().screens = {{144}};
            program.open(host);
            int calls = 0;
            program.desk().onCall = [&](const std::string& call) {
                if (!speaksOfPixels(call))
                    return;
                ++calls;
                CAPTURE(call);
                CHECK(program.desk().awareness == host);
            };
            program.ticks(1);
            CHECK(calls >= 6);
            // What was made for the host sees what it sees, the sliver of the calculator's form as well.
            CHECK(program.bar().awareness == host);
            CHECK(program.calculator().awareness == host);
            CHECK(program.desk().window(program.Program::form().calculators.at(1)->hWnd()).awareness == host);
            CHECK(program.desk().awareness == own);
            CHECK(program.desk().awarenessResets == 0);
        }
}

TEST_CASE("so it does with every later call") {
    for (const Awareness host : allViews) {
        InViews program;
        program.desk().screens = {{144}, {192}};
        const HWND window = program.open(host);
        program.ticks(1);
        const Awareness own = program.desk().awareness;
        std::vector<std::string> others;
        int calls = 0;
        program.desk().onCall = [&](const std::string& call) {
            if (!speaksOfPixels(call))
                return;
            ++calls;
            if (program.desk().awareness != host)
                others.push_back(call);
        };
        // The user makes it larger; the list is saved; the host is made smaller, and comes to another screen.
        program.desk().resizeWindow(program.bar().handle, 300, 100);
        program.form().rebuild();
        program.form().Form_Resize();
        program.desk().resizeWindow(window, 1200, 700);
        program.ticks(1);
        program.desk().window(window).screen = 1;
        program.ticks(1);
        CHECK(others.empty());
        CHECK(calls >= 12);
        CHECK(program.desk().awareness == own);
    }
}

TEST_CASE("a dpi message that comes while Form_Resize has the form out of the host is ignored") {
    InViews program;
    // The host's client area has its corner on the finer screen at the right. The same numbers are a place on
    // the main screen.
    program.desk().screens = {{96}, {144, {1280, 0, 3200, 1080}}};
    const HWND host = program.open(Awareness::perMonitor, 1200, 1);
    program.desk().window(host).rect = {1400, 0, 2600, 700};
    program.ticks(1);
    const RECT before = program.bar().rect;
    int messages = 0;
    const auto hears = program.bar().dpiChanged;
    program.desk().window(program.bar().handle).dpiChanged = [&](int dpi, const RECT& suggested) {
        ++messages;
        CHECK(dpi == 96);
        CHECK(program.bar().parent == HWND::none);
        hears(dpi, suggested);
        CHECK(program.form().resolution().dpi() == 144);
    };
    program.form().Form_Resize();
    CHECK(messages == 1);
    CHECK(program.form().resolution().dpi() == 144);
    CHECK(program.form().ImageList1.pictureWidth() == 24);
    CHECK(program.bar().parent == host);
    CHECK(program.bar().rect == before);
    // A new height meanwhile is one in the host's pixels.
    program.desk().resizeWindow(program.bar().handle, before.right - before.left, 200);
    CHECK(messages == 2);
    CHECK(program.bar().rect == before);
    program.ticks(2);
    CHECK(program.bar().rect == before);
    CHECK(program.desk().awarenessResets == 0);
}

TEST_CASE("a host whose resolution changes while its toolbar follows is followed with the next tick, once") {
    int calls = 0;
    for (int moment = 1;; ++moment) {
        CAPTURE(moment);
        InViews program;
        program.desk().screens = {{96}, {144}, {192}};
        const HWND host = program.open(Awareness::perMonitor, 1024);
        program.ticks(1);
        platform::MoveWindow(program.bar().handle, 400, 100, 128, 48, true);
        program.desk().window(host).screen = 1;
        {
            const AtCall change(moment, [&] { program.desk().window(host).screen = 2; });
            program.ticks(1);
            calls = change.calls();
        }
        if (calls < moment)
            break;
        program.ticks(2);
        CHECK(program.form().resolution().dpi() == 192);
        CHECK(program.bar().rect == RECT{800, 200, 1056, 200 + 44 + 52});
        CHECK(program.calculator().rect.bottom == 36);
        CHECK(program.desk().awarenessResets == 0);
    }
    CHECK(calls > 10);
}

TEST_CASE("a change and its way back between two ticks are no change") {
    InViews program;
    program.desk().screens = {{96}, {144}};
    const HWND host = program.open(Awareness::perMonitor, 1024);
    program.ticks(1);
    const RECT before = program.bar().rect;
    program.desk().window(host).screen = 1;
    program.desk().window(host).screen = 0;
    program.desk().calls.clear();
    program.ticks(1);
    CHECK(program.bar().rect == before);
    CHECK(program.desk().calls.empty());
}

TEST_CASE("a host that dies while its toolbar follows leaves the program as it was") {
    int calls = 0;
    for (int moment = 1;; ++moment) {
        CAPTURE(moment);
        InViews program;
        program.desk().screens = {{96}, {144}};
        const HWND host = program.open(Awareness::perMonitor, 1024);
        program.ticks(1);
        const Awareness own = program.desk().awareness;
        program.desk().window(host).screen = 1;
        {
            const AtCall end(moment, [&] { program.desk().closeWindow(host); });
            program.ticks(1);
            calls = end.calls();
        }
        if (calls < moment)
            break;
        program.ticks(2);
        CHECK(program.desk().find(host) == nullptr);
        CHECK(program.desk().awareness == own);
        CHECK(program.desk().awarenessResets == 0);
        CHECK(program.desk().messageBoxes.empty());
        CHECK_FALSE(program.desk().ended);
    }
}

TEST_CASE("a host that dies between two ticks takes no resolution with it") {
    InViews program;
    program.desk().screens = {{96}, {144}};
    const HWND host = program.open(Awareness::perMonitor, 1024, 1);
    program.ticks(1);
    program.desk().closeWindow(host);
    program.ticks(2);
    CHECK(program.form().resolution().dpi() == 144);
    CHECK_FALSE(program.desk().ended);
}

TEST_CASE("a host that comes to a screen of 0, 1 or 95 dpi is served as at 96, of 480 at five times that") {
    for (const auto& [dpi, served] :
         {std::pair(0, 144), std::pair(1, 96), std::pair(95, 96), std::pair(480, 480), std::pair(481, 480)}) {
        CAPTURE(dpi);
        InViews program;
        program.desk().screens = {{144}, {dpi}};
        const HWND host = program.open(Awareness::perMonitor, 1536);
        program.ticks(1);
        platform::MoveWindow(program.bar().handle, 600, 150, 192, 72, true);
        program.desk().window(host).screen = 1;
        program.ticks(3);
        // 0 is what the system tells of a dead window: nothing is known then.
        CHECK(program.form().resolution().dpi() == served);
        CHECK(program.bar().rect.left == 400 * served / 96);
        CHECK(program.bar().rect.top == 100 * served / 96);
        CHECK(program.bar().rect.right - program.bar().rect.left == 128 * served / 96);
    }
}

TEST_SUITE_END();
