// The arrows on the buttons that move an entry.
#include "setup/arrows.h"
#include "setup/dialog.h"

using setup::Dialog;
using setup::Names;

namespace {

/// Row by row, a dot for nothing, # for a full pixel, + for a soft edge.
Names drawn(const forms::Picture& picture) {
    Names rows;
    for (int y = 0; y < picture.height(); ++y) {
        std::string row;
        for (int x = 0; x < picture.width(); ++x) {
            const std::uint32_t opacity = picture.pixel(x, y) >> 24U;
            row += opacity == 0 ? '.' : opacity == 0xFF ? '#' : '+';
        }
        rows.push_back(row);
    }
    return rows;
}

const Names upwards = {
    "....................", "....................", ".........++.........", "........+##+........",
    ".......+####+.......", "......+######+......", ".....+########+.....", "....+##########+....",
    "...+############+...", "..+##############+..", ".+################+.", ".......######.......",
    ".......######.......", ".......######.......", ".......######.......", ".......######.......",
    ".......######.......", ".......######.......", "....................", "....................",
};

} // namespace

TEST_SUITE_BEGIN("setup/arrows");

TEST_CASE("the arrows point up and down, dark blue with soft edges on nothing") {
    CHECK(drawn(setup::upArrow()) == upwards);
    CHECK(drawn(setup::downArrow()) == Names(upwards.rbegin(), upwards.rend()));
    CHECK(setup::upArrow().pixel(10, 8) == 0xFF1F4E8C);
    CHECK(setup::upArrow().pixel(10, 2) == 0x5F1F4E8C);
}

TEST_CASE("the upper button of each page has the arrow that points up") {
    const Dialog dialog;
    for (const forms::CommandButton& button : setup::setupForm().btnH)
        CHECK(button.picture() == setup::upArrow());
    for (const forms::CommandButton& button : setup::setupForm().btnL)
        CHECK(button.picture() == setup::downArrow());
}

TEST_SUITE_END();
