// Dialogs that are as large as their screen shows what is of their size.
#include "forms/form.h"

#include "desktop/desktop.h"

#include "forms/frame.h"
#include "forms/iconGrid.h"
#include "forms/label.h"
#include "forms/pictureBox.h"

#include <doctest/doctest.h>

#include <vector>

using desktop::Awareness;
using desktop::world;
using forms::Resolution;
using platform::RECT;

namespace {

/// Client area of 600 by 400 pixels of the design.
struct Dialog : forms::Form {
    Dialog() {
        followsScreen = true;
        centreOnScreen = true;
        setClientSize(9000, 6000);
        box.place(*this, {150, 300, 1500, 750});
    }
    void Form_Resize() override { ++resized; }

    const desktop::Window& shown() { return world().window(hWnd()); }
    int clientWidth() { return shown().rect.right - shown().rect.left - shown().frameWidth; }
    int clientHeight() { return shown().rect.bottom - shown().rect.top - shown().frameHeight; }

    forms::Frame box;
    int resized = 0;
};

struct Screens {
    explicit Screens(int dpi, Awareness awareness = Awareness::perMonitor) {
        world().awareness = awareness;
        world().screens = {{dpi, {}}};
        world().screenWidth = 4000;
        world().screenHeight = 3000;
        world().workArea = {0, 0, 4000, 2900};
    }

  private:
    desktop::Session session_;
};

forms::Picture plain(int width, int height) {
    return {width, height,
            std::vector<std::uint32_t>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                                       0xFF112233U)};
}

} // namespace

TEST_SUITE_BEGIN("forms/followScreen");

TEST_CASE("a dialog opens as large as the screen shows what is of its size") {
    struct Row {
        int dpi;
        int width;
        int height;
        RECT box;
    };
    for (const Row& row : {Row{96, 600, 400, {10, 20, 110, 70}}, Row{120, 750, 500, {13, 25, 138, 88}},
                           Row{144, 900, 600, {15, 30, 165, 105}}, Row{168, 1050, 700, {18, 35, 193, 123}},
                           Row{192, 1200, 800, {20, 40, 220, 140}}, Row{240, 1500, 1000, {25, 50, 275, 175}},
                           Row{480, 3000, 2000, {50, 100, 550, 350}}})
        for (const Awareness awareness : {Awareness::system, Awareness::perMonitor}) {
            CAPTURE(row.dpi);
            const Screens screens(row.dpi, awareness);
            Dialog dialog;
            dialog.load();
            CHECK(dialog.clientWidth() == row.width);
            CHECK(dialog.clientHeight() == row.height);
            CHECK(world().window(dialog.box.hWnd()).rect == row.box);
            CHECK(dialog.scaleWidth() == 9000);
            const int outer = dialog.shown().rect.right - dialog.shown().rect.left;
            CHECK(dialog.shown().rect.left == (4000 - outer) / 2);
            CHECK(dialog.resized == 0);
        }
}

TEST_CASE("a program that knows of no such screens has its dialogs as the design has them") {
    const Screens screens(192, Awareness::unaware);
    Dialog dialog;
    dialog.load();
    CHECK(dialog.clientWidth() == 600);
}

TEST_CASE("a form that does not follow its screen keeps the design's resolution") {
    const Screens screens(192);
    forms::Form form;
    form.setClientSize(1500, 1500);
    form.load();
    CHECK(form.resolution() == Resolution());
}

TEST_CASE("a resolution that no screen has counts as the nearest that there is") {
    for (const int dpi : {0, 1, 95}) {
        CAPTURE(dpi);
        const Screens screens(dpi);
        Dialog dialog;
        dialog.load();
        CHECK(dialog.clientWidth() == 600);
    }
    const Screens screens(2000);
    Dialog dialog;
    dialog.load();
    CHECK(dialog.resolution().dpi() == 480);
}

TEST_CASE("a dialog takes the largest scale that its screen has room for") {
    const Screens screens(192);
    // Frame and title bar: 12 and 58 pixels.
    SUBCASE("as high as there is room") {
        world().workArea = {0, 0, 4000, 800 + 58};
        Dialog dialog;
        dialog.load();
        CHECK(dialog.resolution().dpi() == 192);
    }
    SUBCASE("a pixel less") {
        world().workArea = {0, 0, 4000, 800 + 57};
        Dialog dialog;
        dialog.load();
        CHECK(dialog.resolution().dpi() == 191);
        CHECK(dialog.shown().rect.bottom <= 857);
        // The title bar is the screen's.
        CHECK(dialog.shown().frameHeight == 58);
    }
    SUBCASE("too narrow") {
        world().workArea = {0, 0, 900 + 12, 2900};
        Dialog dialog;
        dialog.load();
        CHECK(dialog.resolution().dpi() == 144);
        CHECK(dialog.shown().rect.right <= 912);
    }
    SUBCASE("beside a bar at the left and below one at the top") {
        world().workArea = {100, 200, 100 + 900 + 12, 2900};
        Dialog narrow;
        narrow.load();
        CHECK(narrow.resolution().dpi() == 144);
        world().workArea = {100, 200, 4000, 200 + 600 + 58};
        Dialog low;
        low.load();
        CHECK(low.resolution().dpi() == 144);
    }
    SUBCASE("less room than for the design") {
        world().workArea = {0, 0, 4000, 380};
        Dialog dialog;
        dialog.load();
        CHECK(dialog.resolution().dpi() < 96);
        CHECK(dialog.shown().rect.bottom <= 380);
    }
    SUBCASE("no room at all") {
        world().workArea = {0, 0, 10, 10};
        Dialog dialog;
        dialog.load();
        CHECK(dialog.resolution().dpi() == 72);
        CHECK(dialog.shown().rect.left == 0);
        CHECK(dialog.shown().rect.top == 0);
    }
}

TEST_CASE("at 96 dpi a dialog is the design's, whatever room there is") {
    const Screens screens(96);
    world().workArea = {0, 0, 300, 300};
    Dialog dialog;
    dialog.load();
    CHECK(dialog.clientWidth() == 600);
    CHECK(dialog.clientHeight() == 400);
}

TEST_CASE("a dialog that is moved to another screen is scaled once, and back again") {
    const Screens screens(96);
    world().screens = {{96, {}}, {144, {4000, 0, 7000, 2000}}};
    Dialog dialog;
    dialog.show();
    const RECT before = dialog.shown().rect;
    world().moveToScreen(dialog.hWnd(), 1, 4100, 200);
    CHECK(dialog.clientWidth() == 900);
    CHECK(dialog.clientHeight() == 600);
    CHECK(dialog.shown().rect.left == 4100);
    CHECK(dialog.shown().rect.top == 200);
    CHECK(world().window(dialog.box.hWnd()).rect == RECT{15, 30, 165, 105});
    CHECK(dialog.left() == 41000);
    CHECK(dialog.resized == 1);
    // Within the screen nothing changes.
    world().moveToScreen(dialog.hWnd(), 1, 4200, 300);
    CHECK(dialog.clientWidth() == 900);
    CHECK(dialog.resized == 1);
    world().moveToScreen(dialog.hWnd(), 0, before.left, before.top);
    CHECK(dialog.shown().rect == before);
    CHECK(world().window(dialog.box.hWnd()).rect == RECT{10, 20, 110, 70});
    CHECK(dialog.resized == 2);
}

TEST_CASE("on the screen that it is moved to a dialog is no larger than the room there") {
    const Screens screens(96);
    world().screens = {{96, {}}, {192, {4000, 0, 7000, 700}}};
    Dialog dialog;
    dialog.show();
    world().moveToScreen(dialog.hWnd(), 1, 4100, 0);
    CHECK(dialog.resolution().dpi() == 154);
    CHECK(dialog.shown().rect.bottom - dialog.shown().rect.top <= 700);
    world().moveToScreen(dialog.hWnd(), 0, 0, 0);
    CHECK(dialog.clientHeight() == 400);
}

TEST_CASE("a screen whose resolution the user changes changes its dialogs") {
    const Screens screens(120);
    Dialog dialog;
    dialog.show();
    const RECT before = dialog.shown().rect;
    dialog.screenChanged(Resolution(0), Resolution(0), before);
    CHECK(dialog.clientWidth() == 600);
    dialog.screenChanged(Resolution(480), Resolution(480), before);
    CHECK(dialog.clientWidth() == 3000);
    CHECK(dialog.shown().rect.left == before.left);
    // Told twice it is the same.
    dialog.screenChanged(Resolution(480), Resolution(480), before);
    CHECK(dialog.clientWidth() == 3000);
    CHECK(dialog.resized == 2);
}

TEST_CASE("a dialog that is opened again has the size that there is room for by then") {
    const Screens screens(192);
    world().workArea = {0, 0, 4000, 658};
    Dialog dialog;
    dialog.load();
    CHECK(dialog.clientHeight() == 600);
    dialog.unload();
    world().workArea = {0, 0, 4000, 2900};
    dialog.load();
    CHECK(dialog.clientWidth() == 1200);
    CHECK(dialog.clientHeight() == 800);
}

TEST_CASE("a form that does not follow its screen hears of no other") {
    const Screens screens(96);
    world().screens = {{96, {}}, {144, {4000, 0, 7000, 2000}}};
    forms::Form form;
    form.setClientSize(1500, 1500);
    form.show();
    world().moveToScreen(form.hWnd(), 1, 4100, 200);
    CHECK(form.resolution() == Resolution());
    CHECK(form.scaleWidth() == 1500);
}

TEST_CASE("a picture is drawn for its screen where that can be, and grows otherwise") {
    const Screens screens(144);
    forms::Form form;
    forms::Image image;
    image.place(form, {0, 0, 300, 150});
    image.setPicture(plain(20, 10));
    CHECK(image.shown() == plain(20, 10));
    form.setResolution(Resolution(144));
    CHECK(image.shown() == plain(30, 15));
    int asked = 0;
    image.drawnFor = [&](Resolution resolution) {
        asked = resolution.dpi();
        return plain(40, 20);
    };
    CHECK(image.shown() == plain(30, 15));
    CHECK(asked == 144);
    form.setResolution(Resolution());
    CHECK(image.shown() == image.picture());
    image.setPicture({});
    CHECK(image.shown().empty());
}

TEST_CASE("a picture box shows what it showed as large as it is now, and is drawn on anew") {
    const Screens screens(96);
    forms::Form form;
    forms::PictureBox box;
    box.place(form, {0, 0, 270, 270});
    box.setPicture(plain(18, 18));
    form.setResolution(Resolution(192));
    CHECK(box.image() == plain(36, 36));
    box.setAutoRedraw(true);
    form.setResolution(Resolution(144));
    CHECK(box.image().width() == 27);
    box.setAutoRedraw(false);
    CHECK(box.image().width() == 27);
}

TEST_CASE("a grid asks for its icons as large as it shows them") {
    const Screens screens(96);
    forms::Form form;
    forms::IconGrid grid;
    grid.place(form, {0, 0, 3000, 3000});
    std::vector<int> sides;
    grid.show(1, [&](int /*index*/, int side) {
        sides.push_back(side);
        return plain(side, side);
    });
    for (const int dpi : {96, 120, 144, 192}) {
        form.setResolution(Resolution(dpi));
        CHECK(grid.picture(0).width() == 32 * dpi / 96);
    }
    CHECK(sides == std::vector<int>{32, 40, 48, 64});
}

TEST_CASE("a picture box that changes its resolution twice has its picture as large as the last one has it") {
    const desktop::Session session;
    forms::Form form;
    forms::PictureBox box;
    box.place(form, {0, 0, 300, 300});
    box.setPicture(forms::Picture(10, 10, std::vector<std::uint32_t>(100, 0xFF112233U)));
    form.setResolution(Resolution(144));
    CHECK(box.picture().width() == 15);
    form.setResolution(Resolution(192));
    CHECK(box.picture().width() == 20);
}

TEST_CASE("a form whose frame alone is of another resolution keeps what is in it") {
    const desktop::Session session;
    forms::Form form;
    form.borderStyle = forms::BorderStyle::fixedDialog;
    form.followsScreen = true;
    form.setClientSize(1500, 750);
    form.load();
    const platform::RECT place{10, 10, 200, 100};
    form.screenChanged(Resolution(96), Resolution(144), place);
    CHECK(form.resolution() == Resolution(96));
    CHECK(form.scaleWidth() == 1500);
}

TEST_SUITE_END();
