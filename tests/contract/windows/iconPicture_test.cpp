// Pictures of icons against the files that they come from, and the sizes in which icons are asked for.
#include "store/iconPicture.h"

#include "contract/windows/counts.h"
#include "contract/windows/icons.h"
#include "contract/windows/importHook.h"
#include "contract/windows/memoryLimit.h"
#include "contract/world.h"

#include "platform/shell32.h"
#include "platform/user32.h"
#include "win32/common/wide.h"
#include "win32/platform/iconFile.h"
#include "win32/platform/iconSizes.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <new>
#include <string>
#include <utility>

namespace {

int channel(std::uint32_t pixel, unsigned shift) {
    return static_cast<int>(pixel >> shift & 0xFFU);
}

/// As near as drawing on two backgrounds can tell: the fainter a pixel, the less is known of its colour.
bool alike(std::uint32_t seen, std::uint32_t expected) {
    const int opacity = channel(expected, 24);
    if (std::abs(channel(seen, 24) - opacity) > 2)
        return false;
    for (const unsigned shift : {0U, 8U, 16U})
        if (opacity > 0 && std::abs(channel(seen, shift) - channel(expected, shift)) * opacity > 3 * 255)
            return false;
    return true;
}

/// The system's measures for a finer screen, as they are told once a window of ours stands in a host that
/// knows of it.
int WINAPI finerMetrics(int index) {
    switch (index) {
    case SM_CXICON:
    case SM_CYICON:
        return 48;
    case SM_CXSMICON:
    case SM_CYSMICON:
        return 24;
    default:
        return 0;
    }
}

/// Pixels that an icon is wide; 0 if there is none.
int widthOf(platform::HICON icon) {
    ICONINFO info{};
    if (GetIconInfo(reinterpret_cast<HICON>(icon), &info) == FALSE)
        return 0;
    BITMAP mask{};
    GetObjectA(info.hbmMask, sizeof mask, &mask);
    DeleteObject(info.hbmMask);
    DeleteObject(info.hbmColor);
    return mask.bmWidth;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/iconPicture");

TEST_CASE("the picture of an icon is the one that stands in the file, opacity and colours") {
    const contract::World world;
    for (const char* name : {"brd.ico", "sch.ico", "lbr.ico"}) {
        const std::string file = contract::World::dataFile(name);
        const forms::Picture expected = contract::pictureIn(file, 32);
        const forms::Picture seen = store::iconPicture(file, 0);
        REQUIRE(seen.pixels().size() == expected.pixels().size());
        int wrong = 0;
        for (std::size_t place = 0; place < expected.pixels().size(); ++place)
            wrong += alike(seen.pixels()[place], expected.pixels()[place]) ? 0 : 1;
        CHECK_MESSAGE(wrong == 0, name);
    }
}

TEST_CASE(
    "icons have 16 and 32 pixels, the one in the tray 16, whatever the system's measures say meanwhile") {
    const contract::World world;
    const contract::ImportHook finer("GetSystemMetrics", reinterpret_cast<void*>(finerMetrics));
    REQUIRE(GetSystemMetrics(SM_CXSMICON) == 24);
    platform::HICON large{};
    platform::HICON little{};
    REQUIRE(platform::ExtractIconExA(contract::World::dataFile("brd.ico").c_str(), 0, large, little) == 1);
    CHECK(widthOf(large) == 32);
    CHECK(widthOf(little) == 16);
    CHECK(widthOf(platform::programIcon()) == 16);
    platform::DestroyIcon(little);
}

TEST_CASE("a picture that the file does not have is made of its next larger one") {
    const contract::World world;
    const std::string file = contract::World::dataFile("brd.ico");
    // The file has 16, 20, 24, 32 and 48 pixels.
    for (const int side : {20, 24, 48}) {
        CAPTURE(side);
        const forms::Picture expected = contract::pictureIn(file, side);
        const forms::Picture seen = store::iconPicture(file, 0, side);
        REQUIRE(seen.pixels().size() == expected.pixels().size());
        CHECK(std::ranges::equal(seen.pixels(), expected.pixels(), alike));
    }
    (void)store::iconPicture(file, 0, 28); // the system makes something at its first icon of a picture
    const int graphics = contract::openGraphics();
    for (const auto& [side, larger] : {std::pair{28, 32}, std::pair{40, 48}, std::pair{18, 20}}) {
        CAPTURE(side);
        const forms::Picture expected = contract::pictureIn(file, larger).scaled(side, side);
        const forms::Picture seen = store::iconPicture(file, 0, side);
        REQUIRE(seen.pixels().size() == expected.pixels().size());
        CHECK(std::ranges::equal(seen.pixels(), expected.pixels(), alike));
    }
    // There is none larger: the largest grows.
    CHECK(store::iconPicture(file, 0, 64).width() == 64);
    CHECK(contract::openGraphics() == graphics);
}

TEST_CASE("what an icon is read and scaled with goes also where there is no memory for its pixels") {
    const contract::World world;
    const std::wstring file = win32::toWide(contract::World::dataFile("brd.ico"));
    platform::HICON large{};
    platform::HICON little{};
    REQUIRE(platform::ExtractIconExA(contract::World::dataFile("brd.ico").c_str(), 0, large, little) == 1);
    const auto icon = reinterpret_cast<HICON>(large);
    REQUIRE(win32::IconFile::read(file));
    const HICON once = win32::scaledIcon(icon, 28);
    REQUIRE(once != nullptr);
    DestroyIcon(once);
    const int handles = contract::openHandles();
    const int graphics = contract::openGraphics();
    {
        constexpr std::size_t pixelsOfLarge = std::size_t{4} * 32 * 32;
        const contract::MemoryLimit limit(pixelsOfLarge);
        CHECK_THROWS_AS(win32::IconFile::read(file), std::bad_alloc);
        CHECK_THROWS_AS(win32::scaledIcon(icon, 28), std::bad_alloc);
    }
    CHECK(contract::openHandles() == handles);
    CHECK(contract::openGraphics() == graphics);
    platform::DestroyIcon(little);
}

TEST_SUITE_END();
