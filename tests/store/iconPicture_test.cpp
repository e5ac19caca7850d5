// The pictures of a file's icons in the chooser's grid.
#include "store/iconChooserScene.h"

#include <algorithm>
#include <vector>

using chooserScene::reference;
using chooserScene::Scene;
using chooserScene::shellFile;
using desktop::world;
using desktop::World;
using store::frmIconChooser;

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
