// The grid of icons.
#include "forms/iconGrid.h"

#include "forms/frame.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

namespace {

forms::Picture plain(int size, std::uint32_t pixel) {
    return {size, size, std::vector<std::uint32_t>(static_cast<std::size_t>(size * size), pixel)};
}

/// Five icons whose pixels are their numbers; what happens is written down.
struct Five : forms::IconGrid {
    Five() {
        onClick = [this] { told.push_back("click " + std::to_string(selectedIndex())); };
        onDblClick = [this] { told.push_back("twice " + std::to_string(selectedIndex())); };
        fill();
    }
    void fill() {
        show(5, [this](int index, int /*side*/) {
            asked.push_back(index);
            return plain(32, 0xFF000000U | static_cast<std::uint32_t>(index));
        });
    }
    std::vector<std::string> told;
    mutable std::vector<int> asked;
};

using Told = std::vector<std::string>;

} // namespace

TEST_SUITE_BEGIN("forms/iconGrid");

TEST_CASE("a grid asks for the picture of an icon when it is wanted, and not before") {
    const Five grid;
    CHECK(grid.count() == 5);
    CHECK(grid.asked.empty());
    CHECK(grid.picture(3) == plain(32, 0xFF000003U));
    CHECK(grid.asked == std::vector<int>{3});
}

TEST_CASE("a picture of another size is fitted to the grid's icons, none becomes a transparent one") {
    forms::IconGrid grid;
    grid.show(2,
              [](int index, int /*side*/) { return index == 0 ? plain(16, 0xFF123456U) : forms::Picture(); });
    CHECK(grid.picture(0) == plain(32, 0xFF123456U));
    CHECK(grid.picture(1) == plain(32, 0));
    grid.show(1, {});
    CHECK(grid.picture(0) == plain(32, 0));
}

TEST_CASE("an assigned icon raises the click inside the assignment if it is another one") {
    Five grid;
    CHECK(grid.selectedIndex() == -1);
    grid.setSelectedIndex(4);
    grid.setSelectedIndex(4);
    grid.setSelectedIndex(0);
    grid.setSelectedIndex(-1);
    CHECK(grid.selectedIndex() == -1);
    CHECK(grid.told == Told{"click 4", "click 0"});
}

TEST_CASE("an icon that is not there cannot be selected or seen") {
    Five grid;
    grid.setSelectedIndex(1);
    for (const int index : {-1, 5})
        CHECK_THROWS_AS(grid.picture(index), runtime::RuntimeError);
    for (const int index : {-2, 5})
        CHECK_THROWS_AS(grid.setSelectedIndex(index), runtime::RuntimeError);
    for (const int index : {-1, 5}) {
        grid.selected(index);
        grid.doubleClicked(index);
    }
    CHECK(grid.selectedIndex() == 1);
    CHECK(grid.told == Told{"click 1"});
}

TEST_CASE("new icons take the selection away without an event, and so does taking all away") {
    Five grid;
    grid.setSelectedIndex(2);
    grid.fill();
    CHECK(grid.selectedIndex() == -1);
    grid.setSelectedIndex(2);
    grid.clear();
    CHECK(grid.count() == 0);
    CHECK(grid.selectedIndex() == -1);
    CHECK(grid.told == Told{"click 2", "click 2"});
    grid.show(-1, {});
    CHECK(grid.count() == 0);
}

TEST_CASE("a user's click raises the event, also on the icon that is selected already") {
    Five grid;
    grid.selected(2);
    grid.selected(2);
    CHECK(grid.told == Told{"click 2", "click 2"});
}

TEST_CASE("a double click selects the icon first if its first click has not") {
    Five grid;
    grid.doubleClicked(1);
    grid.selected(3);
    grid.doubleClicked(3);
    CHECK(grid.told == Told{"click 1", "twice 1", "click 3", "twice 3"});
}

TEST_CASE("a double click whose first click has shown other icons raises nothing more") {
    Five grid;
    grid.onClick = [&grid] { grid.clear(); };
    grid.doubleClicked(1);
    CHECK(grid.told.empty());
}

TEST_CASE("a disabled grid hears no user, whether it is disabled itself or with what it stands in") {
    Five grid;
    forms::Frame frame;
    grid.place(frame, {0, 0, 1500, 1500});
    frame.setEnabled(false);
    grid.selected(2);
    grid.doubleClicked(2);
    frame.setEnabled(true);
    grid.setEnabled(false);
    grid.selected(2);
    grid.doubleClicked(2);
    CHECK(grid.selectedIndex() == -1);
    CHECK(grid.told.empty());
}

TEST_CASE("two clicks on the selected icon of a disabled grid, or beside all icons, choose nothing") {
    Five grid;
    int chosen = 0;
    grid.onDblClick = [&] { ++chosen; };
    grid.doubleClicked(-1);
    CHECK(chosen == 0);
    grid.selected(2);
    grid.setEnabled(false);
    grid.doubleClicked(2);
    CHECK(chosen == 0);
    grid.setEnabled(true);
    grid.doubleClicked(2);
    CHECK(chosen == 1);
}

TEST_SUITE_END();
