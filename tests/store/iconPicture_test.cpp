// The pictures of a file's icons in the chooser's grid.
#include "store/iconChooserScene.h"

#include "store/iconPicture.h"

#include <algorithm>
#include <vector>

using chooserScene::reference;
using chooserScene::Scene;
using chooserScene::shellFile;
using desktop::world;
using desktop::World;
using store::frmIconChooser;

TEST_SUITE_BEGIN("store/iconPicture");

TEST_CASE("no icon is read before it is seen") {
    const Scene scene;
    Scene::look(reference(shellFile, 12), [](frmIconChooser& form) {
        const auto before = world().nextIcon;
        form.grdIcons.picture(12);
        CHECK(world().nextIcon > before);
        CHECK(before == World().nextIcon);
    });
}

TEST_CASE("the pictures are those of the file's icons, and every icon is given back") {
    const Scene scene;
    Scene::look(reference(shellFile, 0), [](frmIconChooser& form) {
        for (int index = 0; index < form.grdIcons.count(); ++index) {
            const forms::Picture shown = form.grdIcons.picture(index);
            const forms::Picture icon = World::iconPicture(shellFile, index);
            CHECK(shown.width() == 32);
            CHECK(shown.pixel(15, 15) == icon.pixel(15, 15));
            CHECK(shown.pixel(16, 15) == 0);
        }
        world().iconFiles.clear();
        CHECK(form.grdIcons.picture(3) == forms::Picture(32, 32, std::vector<std::uint32_t>(1024)));
    });
    CHECK(world().icons.empty());
}

TEST_CASE("an icon keeps its opacity") {
    const Scene scene;
    const std::vector<std::uint32_t> kinds{0xFF102030U, 0x80FF8000U, 0x00123456U, 0xFFFFFFFFU, 0xFF000000U};
    std::vector<std::uint32_t> pixels(1024);
    std::copy(kinds.begin(), kinds.end(), pixels.begin());
    world().writeFile("C:\\t\\half.ico", "");
    world().iconFiles["c:\\t\\half.ico"].small = {forms::Picture(32, 32, pixels)};
    Scene::look("C:\\t\\half.ico,0", [&kinds](frmIconChooser& form) {
        const forms::Picture shown = form.grdIcons.picture(0);
        for (int column = 0; column < 5; ++column) {
            const std::uint32_t drawn = kinds[static_cast<std::size_t>(column)];
            CHECK(shown.pixel(column, 0) == (drawn >> 24U == 0 ? 0 : drawn));
        }
    });
}

TEST_CASE("without memory to draw on, on black or on white, an icon has no picture") {
    const desktop::Session session;
    world().addIcons("C:\\t\\a.ico", 1);
    for (const int surfaces : {0, 1}) {
        world().room[desktop::Creation::picture] = surfaces;
        CHECK(store::iconPicture("C:\\t\\a.ico", 0).empty());
    }
    world().room.clear();
    CHECK_FALSE(store::iconPicture("C:\\t\\a.ico", 0).empty());
}

TEST_CASE("a pixel is what looks as it does on black and on white") {
    CHECK(store::pixelSeen(0x000000, 0xFFFFFF) == 0);
    CHECK(store::pixelSeen(0x123456, 0x123456) == 0xFF123456);
    CHECK(store::pixelSeen(0x000000, 0x000000) == 0xFF000000);
    CHECK(store::pixelSeen(0xFFFFFF, 0xFFFFFF) == 0xFFFFFFFF);
    // Half of red, half of black, a trace of white; rounded to the nearest.
    CHECK(store::pixelSeen(0x800000, 0xFF7F7F) == 0x80FF0000);
    CHECK(store::pixelSeen(0x000000, 0x7F7F7F) == 0x80000000);
    CHECK(store::pixelSeen(0x010101, 0xFFFFFF) == 0x01FFFFFF);
    CHECK(store::pixelSeen(0x020000, 0xFFFCFC) == 0x03AA0000);
    // White on black and black on white.
    CHECK(store::pixelSeen(0xFFFFFF, 0x000000) == 0xFFFFFFFF);
    CHECK(store::pixelSeen(0xFF0000, 0x00FFFF) == 0xFFFF0000);
}

TEST_SUITE_END();
