// Icons of files, drawn into a picture box, and their handles.
#include "contract/world.h"
#include "forms/pictureBox.h"
#include "platform/shell32.h"
#include "platform/user32.h"
#include "store/iconExtract.h"
#include "store/iconPicture.h"

#include <doctest/doctest.h>

#include <algorithm>

namespace {

using contract::IconFile;
using contract::IconSource;
using contract::World;
using platform::HICON;

constexpr IconSource sources[] = {IconSource::ico, IconSource::exe, IconSource::dll};
constexpr std::uint32_t background = forms::opaque | forms::maskGrey;

/// A box of 18 by 18 pixels, as the toolbars have it.
struct Box : forms::PictureBox {
    Box() { setPosition({0, 0, 270, 270}); }
};

/// What an icon's pixel becomes on the background; nothing for one that shines through.
std::optional<std::uint32_t> drawn(std::uint32_t pixel) {
    if (pixel >> 24 == 0xFF)
        return pixel;
    if (pixel >> 24 == 0)
        return background;
    return std::nullopt;
}

/// Nothing is left open from before.
void giveBackLast(const IconFile& file) {
    HICON large = HICON::none;
    HICON small = HICON::none;
    platform::ExtractIconExA(file.path.c_str(), 0, large, small);
    platform::DestroyIcon(large);
    platform::DestroyIcon(small);
}

struct Differences {
    int margin = 0; ///< pixels around the icon that are not background
    int icon = 0;   ///< pixels of the icon that are not its own
    int drawn = 0;  ///< pixels that are not background
};

/// Compares a picture with one that has the icon at (1, 1) and nothing around it.
Differences compare(const forms::Picture& picture, const std::optional<forms::Picture>& icon) {
    REQUIRE(picture.width() == 18);
    REQUIRE(picture.height() == 18);
    Differences found;
    for (int y = 0; y < 18; ++y)
        for (int x = 0; x < 18; ++x) {
            const std::uint32_t pixel = picture.pixel(x, y);
            found.drawn += pixel == background ? 0 : 1;
            if (x < 1 || y < 1 || x > 16 || y > 16) {
                found.margin += pixel == background ? 0 : 1;
                continue;
            }
            const std::optional<std::uint32_t> expected =
                icon ? drawn(icon->pixel(x - 1, y - 1)) : std::nullopt;
            found.icon += expected && pixel != *expected ? 1 : 0;
        }
    return found;
}

void checkDrawn(const forms::Picture& picture, const std::optional<forms::Picture>& icon) {
    const Differences found = compare(picture, icon);
    CHECK(found.drawn > 20);
    CHECK(found.margin == 0);
    CHECK(found.icon == 0);
}

} // namespace

TEST_SUITE_BEGIN("contract/icons");

TEST_CASE("one icon is extracted at both sizes from a file that has it, none beyond") {
    for (const IconSource source : sources) {
        World world;
        const IconFile file = world.iconFile(source);
        for (const int index : {0, file.count - 1}) {
            HICON large = HICON::none;
            HICON small = HICON::none;
            CHECK(platform::ExtractIconExA(file.path.c_str(), index, large, small) >= 1);
            CHECK(large != HICON::none);
            CHECK(small != HICON::none);
            CHECK(platform::DestroyIcon(small));
            CHECK(platform::DestroyIcon(large));
        }
        HICON large = HICON::none;
        HICON small = HICON::none;
        CHECK(platform::ExtractIconExA(file.path.c_str(), 30'000, large, small) == 0);
        if (source != IconSource::dll)
            CHECK(platform::ExtractIconExA(file.path.c_str(), file.count, large, small) == 0);
    }
}

TEST_CASE("files without icons and files that are not there give none") {
    World world;
    world.writeFile(world.path("text.txt"), "no icon in here");
    world.writeFile(world.path("broken.ico"), std::string("\0\0\1\0\0\0 garbage", 14));
    HICON large = HICON::none;
    HICON small = HICON::none;
    for (const char* name : {"text.txt", "broken.ico", "nosuch.ico", "nosuch\\folder.exe"})
        CHECK_MESSAGE(platform::ExtractIconExA(world.path(name).c_str(), 0, large, small) == 0, name);
}

TEST_CASE("the icons of a file are counted, of one without them there are none") {
    for (const IconSource source : sources) {
        World world;
        const IconFile file = world.iconFile(source);
        const int count = platform::iconCount(file.path.c_str());
        CHECK((source == IconSource::dll ? count >= file.count : count == file.count));
    }
    World world;
    world.writeFile(world.path("text.txt"), "no icon in here");
    for (const char* name : {"text.txt", "nosuch.ico", "nosuch\\folder.exe"})
        CHECK_MESSAGE(platform::iconCount(world.path(name).c_str()) == 0, name);
    CHECK(platform::iconCount("") == 0);
}

TEST_CASE("an icon's picture shows what is behind it where the icon does, and leaves no icon open") {
    for (const IconSource source : sources) {
        World world;
        const IconFile file = world.iconFile(source);
        giveBackLast(file);
        const int before = World::openIcons();
        const forms::Picture picture = store::iconPicture(file.path, 0);
        CHECK(store::iconPicture(file.path, 30'000).empty());
        CHECK(store::iconPicture(world.path("nosuch.ico"), 0).empty());
        CHECK(World::openIcons() == before);
        REQUIRE(picture.width() == 32);
        REQUIRE(picture.height() == 32);
        const auto opaque = [](std::uint32_t pixel) { return pixel >> 24U == 0xFF; };
        const auto clear = [](std::uint32_t pixel) { return pixel >> 24U == 0; };
        CHECK(std::ranges::count_if(picture.pixels(), opaque) > 100);
        CHECK(std::ranges::count_if(picture.pixels(), clear) > 10);
    }
}

TEST_CASE("an icon is drawn in its small size with a margin of one pixel") {
    for (const IconSource source : sources) {
        World world;
        const IconFile file = world.iconFile(source);
        for (const int index : {0, file.count - 1}) {
            Box box;
            store::extractIconToPicture(file.path, index, box);
            checkDrawn(box.image(), file.picture(index));
        }
    }
}

TEST_CASE("a second icon replaces the first") {
    World world;
    const IconFile file = world.iconFile(IconSource::exe);
    REQUIRE(file.count >= 2);
    Box box;
    store::extractIconToPicture(file.path, 0, box);
    const forms::Picture first = box.image();
    store::extractIconToPicture(file.path, 1, box);
    CHECK_FALSE(box.image() == first);
    checkDrawn(box.image(), file.picture(1));
}

TEST_CASE("a missing file and an index beyond the last leave the picture as it was") {
    World world;
    const IconFile file = world.iconFile(IconSource::ico);
    Box box;
    store::extractIconToPicture(file.path, 0, box);
    const forms::Picture before = box.image();
    store::extractIconToPicture(world.path("nosuch.ico"), 0, box);
    store::extractIconToPicture(file.path, file.count, box);
    store::extractIconToPicture("", 0, box);
    CHECK(box.image() == before);
    // A failed extraction does not even clear a box that shows something.
    checkDrawn(box.image(), file.picture(0));
}

TEST_CASE("an icon is gone once it has been given back, and gone only once") {
    World world;
    const IconFile file = world.iconFile(IconSource::ico);
    giveBackLast(file);
    const int before = World::openIcons();
    HICON large = HICON::none;
    HICON small = HICON::none;
    REQUIRE(platform::ExtractIconExA(file.path.c_str(), 0, large, small) >= 1);
    CHECK(World::openIcons() == before + 2);
    CHECK(platform::DestroyIcon(small));
    CHECK_FALSE(platform::DestroyIcon(small));
    CHECK(platform::DestroyIcon(large));
    CHECK(World::openIcons() == before);
}

TEST_CASE("drawing an icon into a box leaves its large size open and nothing else, until the next one") {
    World world;
    const IconFile file = world.iconFile(IconSource::exe);
    Box box;
    store::extractIconToPicture(file.path, 0, box);
    const int before = World::openIcons();
    for (int time = 0; time < 50; ++time)
        store::extractIconToPicture(file.path, time % file.count, box);
    // The simulated desktop counts what the routine leaves.
    const bool simulated = contract::worldKind() == contract::WorldKind::simulated;
    CHECK(World::openIcons() == before + (simulated ? 50 : 0));
}

TEST_CASE("a large icon lasts until the next extraction, whether that finds one or not") {
    World world;
    const IconFile file = world.iconFile(IconSource::ico);
    HICON large = HICON::none;
    HICON small = HICON::none;
    REQUIRE(platform::ExtractIconExA(file.path.c_str(), 0, large, small) >= 1);
    const int before = World::openIcons();
    HICON none = HICON::none;
    SUBCASE("of another icon") {
        HICON next = HICON::none;
        HICON nextSmall = HICON::none;
        REQUIRE(platform::ExtractIconExA(file.path.c_str(), 0, next, nextSmall) >= 1);
        CHECK(platform::DestroyIcon(next));
        CHECK(platform::DestroyIcon(nextSmall));
    }
    SUBCASE("of a file that is not there") {
        CHECK(platform::ExtractIconExA(world.path("nosuch.ico").c_str(), 0, none, none) == 0);
    }
    const bool simulated = contract::worldKind() == contract::WorldKind::simulated;
    CHECK(World::openIcons() == before - (simulated ? 0 : 1));
    CHECK(platform::DestroyIcon(small));
}

TEST_SUITE_END();
