// Hosts behind the front one of their kind, when their screen gets another resolution.
#include "core/running.h"
#include "desktop/faults.h"
#include "platform/user32.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

using desktop::Awareness;
using platform::HWND;
using store::EditorKind;

namespace {

/// Editors in processes of their own, that stand as they have been opened: the last one in front.
struct Editors : Running {
    Editors() {
        store::unitCalcActive = 1;
        desk().screens = {{96}, {144}};
    }

    HWND open(const std::string& title, Awareness awareness = Awareness::perMonitor) {
        const std::uint32_t process = 50 + static_cast<std::uint32_t>(hosts.size());
        desk().startProcess("eagle.exe", process);
        hosts.push_back(desk().openWindow(title + " - x - EAGLE", {0, 0, 1024, 700}, process));
        desk().window(hosts.back()).awareness = awareness;
        ticks(1);
        return hosts.back();
    }
    /// The user sets another scale for the screen that all of them stand on.
    void scaleAll(std::size_t screen = 1) {
        for (const HWND host : hosts)
            if (desk().find(host) != nullptr)
                desk().window(host).screen = screen;
    }
    int dpi(EditorKind kind, std::size_t number) { return toolbar(kind, number).resolution().dpi(); }
    const desktop::Window& bar(std::size_t number, EditorKind kind = EditorKind::board) {
        return desk().window(toolbar(kind, number).window());
    }
    const desktop::Window& calculator(std::size_t number) {
        return desk().window(form().calculators.at(number)->fraMil.hWnd());
    }

    std::vector<HWND> hosts;
};

/// Calls that raise a window, or take one out of its host.
bool disturbs(const std::string& call) {
    return call.starts_with("SetWindowPos") || call.starts_with("BringWindowToTop") ||
           call.starts_with("ShowWindow") || call.starts_with("SetParent");
}

} // namespace

TEST_SUITE_BEGIN("core/hindHosts");

TEST_CASE("two boards in sight on one screen follow its new scale with the same tick") {
    Editors program;
    program.open("Board");
    program.open("Board");
    program.scaleAll();
    program.ticks(1);
    for (const std::size_t number : {1U, 2U}) {
        CAPTURE(number);
        CHECK(program.dpi(EditorKind::board, number) == 144);
        CHECK(program.toolbar(EditorKind::board, number).ImageList1.pictureWidth() == 24);
        // 871 and 21 pixels of 96 dpi, half as far again. The host is narrower than 700 of these pixels.
        CHECK(program.bar(number).rect.left == 1307);
        CHECK(program.bar(number).rect.top == 32);
        CHECK(program.calculator(number).rect.left == 750);
        CHECK(program.calculator(number).rect.bottom == 27);
    }
    CHECK(program.desk().awarenessResets == 0);
    CHECK(program.desk().awareness == Awareness::perMonitor);
}

TEST_CASE("a board that was in front follows in its turn, once EAGLE's window without an editor is in front "
          "of it") {
    Editors program;
    program.open("Board");
    program.ticks(1);
    program.desk().openWindow("EAGLE: Board - help");
    program.ticks(1);
    program.scaleAll();
    program.ticks(2);
    CHECK(program.dpi(EditorKind::board, 1) == 144);
}

TEST_CASE("so do all kinds and all editors, one of which is dead and one of another view") {
    Editors program;
    const char* titles[] = {"Board", "Schematic", "Library"};
    // Two of each behind the front one: only one of all could follow because it has its turn just then.
    for (int round = 1; round <= 3; ++round)
        for (const char* title : titles)
            program.open(title);
    const HWND dead = program.open("Board");
    program.open("Board", Awareness::unaware);
    program.desk().closeWindow(dead);
    program.scaleAll();
    program.ticks(1);
    CHECK(program.dpi(EditorKind::board, 5) == 96);
    for (const EditorKind kind : store::editorKinds)
        for (const std::size_t number : {1U, 2U, 3U}) {
            CAPTURE(static_cast<int>(kind));
            CAPTURE(number);
            CHECK(program.dpi(kind, number) == 144);
            CHECK(program.bar(number, kind).rect.top == 32);
        }
    CHECK(program.hosted(EditorKind::library) == 3);
    CHECK(program.desk().awarenessResets == 0);
}

TEST_CASE("all toolbars of a library that gets one with each tick follow, in both directions") {
    for (const std::size_t first : {0U, 1U}) {
        CAPTURE(first);
        Editors program;
        const std::size_t second = 1 - first;
        const int dpi = second == 1 ? 144 : 96;
        const HWND host = program.desk().openWindow("Library - x - EAGLE", {0, 0, 1024, 700});
        program.desk().window(host).awareness = Awareness::perMonitor;
        program.desk().window(host).screen = first;
        program.ticks(3);
        REQUIRE(program.hosted(EditorKind::library) == 3);
        const auto width = [&](std::size_t number) {
            const platform::RECT& rect = program.bar(number, EditorKind::library).rect;
            return rect.right - rect.left;
        };
        program.desk().window(host).screen = second;
        program.ticks(1);
        REQUIRE(program.hosted(EditorKind::library) == 4);
        for (std::size_t number = 1; number <= 4; ++number) {
            CAPTURE(number);
            CHECK(program.dpi(EditorKind::library, number) == dpi);
            // As one that is made there.
            CHECK(width(number) == (second == 1 ? 192 : 128));
        }
    }
}

TEST_CASE("while they follow no host comes to the front of another and none gets the keyboard") {
    Editors program;
    program.open("Board");
    program.open("Schematic");
    program.open("Board");
    const HWND elsewhere = program.desk().openWindow("another program");
    program.desk().foreground = elsewhere;
    const std::vector<HWND> before = program.desk().order;
    program.scaleAll();
    program.desk().calls.clear();
    program.ticks(2);
    CHECK(program.dpi(EditorKind::board, 1) == 144);
    CHECK(program.dpi(EditorKind::schematic, 1) == 144);
    CHECK(program.desk().order == before);
    CHECK(program.desk().foreground == elsewhere);
    CHECK(std::ranges::count_if(program.desk().calls, disturbs) == 0);
}

TEST_CASE("one behind that comes to another screen alone has its turn, however many there are") {
    Editors program;
    for (int number = 1; number <= 4; ++number)
        program.open("Board");
    for (const std::size_t number : {1U, 2U, 3U}) {
        CAPTURE(number);
        program.desk().window(program.hosts.at(number - 1)).screen = 1;
        // Behind the last one begins a new turn; the form without a host has none.
        program.ticks(6);
        CHECK(program.dpi(EditorKind::board, number) == 144);
        CHECK(program.bar(number).rect.left == 1307);
    }
    CHECK(program.dpi(EditorKind::board, 4) == 96);
}

TEST_CASE("nobody waits for the turns of those that have gone") {
    Editors program;
    for (int number = 1; number <= 20; ++number)
        program.desk().closeWindow(program.open("Board"));
    const HWND behind = program.open("Board");
    program.open("Board");
    program.desk().window(behind).screen = 1;
    program.ticks(3);
    CHECK(program.dpi(EditorKind::board, 21) == 144);
}

TEST_CASE("a tick asks for no more resolutions with twenty boards than with two") {
    const auto asked = [](int boards) {
        Editors program;
        for (int number = 1; number <= boards; ++number)
            program.open("Board");
        program.desk().calls.clear();
        int most = 0;
        for (int tick = 1; tick <= 2 * boards; ++tick) {
            program.desk().resolutionsAsked = 0;
            program.ticks(1);
            most = std::max(most, program.desk().resolutionsAsked);
        }
        CHECK(program.desk().calls.empty());
        return most;
    };
    CHECK(asked(2) == 2);
    CHECK(asked(20) == 2);
}

TEST_CASE("a tick asks each of those in front once, and nobody else where nobody is behind") {
    Editors program;
    for (const char* title : {"Board", "Schematic", "Library"})
        program.open(title);
    program.ticks(2);
    for (int tick = 1; tick <= 5; ++tick) {
        program.desk().resolutionsAsked = 0;
        program.ticks(1);
        CHECK(program.desk().resolutionsAsked == 3);
    }
}

TEST_CASE("a host that hangs behind others holds nobody up") {
    Editors program;
    const HWND hung = program.open("Board");
    program.open("Board");
    program.open("Board");
    program.desk().hang(hung, 60'000);
    program.scaleAll();
    const std::int64_t before = program.desk().now;
    program.ticks(1);
    CHECK(program.desk().now - before <= 200);
    for (const std::size_t number : {1U, 2U, 3U})
        CHECK(program.dpi(EditorKind::board, number) == 144);
    program.desk().run(60'000);
    CHECK(program.bar(1).rect.left == 1307);
}

TEST_CASE("a host that dies while others follow takes none of these with it") {
    int made = 1;
    for (int moment = 1; made >= moment; ++moment) {
        CAPTURE(moment);
        Editors program;
        const HWND dies = program.open("Board");
        program.open("Board");
        program.open("Board");
        program.scaleAll();
        made = 0;
        desktop::faults().onCall = [&](const std::string&) {
            if (++made == moment)
                program.desk().closeWindow(dies);
        };
        program.ticks(1);
        desktop::faults().onCall = nullptr;
        CHECK((made < moment || program.desk().find(dies) == nullptr));
        program.ticks(1);
        CHECK(program.dpi(EditorKind::board, 2) == 144);
        CHECK(program.dpi(EditorKind::board, 3) == 144);
        CHECK(program.desk().awareness == Awareness::perMonitor);
        CHECK(program.desk().messageBoxes.empty());
        CHECK_FALSE(program.desk().ended);
    }
    CHECK(made > 10);
}

TEST_CASE("a call that fails while toolbars follow ends nothing, and each has its place all the same") {
    int made = 1;
    int refused = 0;
    for (int failing = 1; made >= failing; ++failing) {
        Editors program;
        program.open("Board");
        program.open("Board");
        program.scaleAll();
        desktop::faults().watch(failing);
        program.ticks(1);
        desktop::faults().stop();
        made = desktop::faults().calls();
        const std::string failed = desktop::faults().failed();
        CAPTURE(failing);
        CAPTURE(failed);
        program.ticks(2);
        for (const std::size_t number : {1U, 2U}) {
            CHECK(program.dpi(EditorKind::board, number) == 144);
            if (failed == "MoveWindow") {
                ++refused;
                CHECK(program.bar(number).rect.left == 1307);
                CHECK(program.bar(number).rect.top == 32);
            }
        }
        CHECK(program.desk().messageBoxes.empty());
        CHECK_FALSE(program.desk().ended);
        program.open("Board");
        CHECK(program.hosted(EditorKind::board) == 3);
    }
    CHECK(made > 10);
    CHECK(refused > 0);
}

TEST_SUITE_END();
