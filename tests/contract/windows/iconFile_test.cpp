// An .ico file that is read once, beside the icons that the system reads from it size by size.
#include "contract/windows/files.h"
#include "contract/windows/importHook.h"
#include "contract/world.h"

#include "platform/shell32.h"
#include "platform/user32.h"
#include "win32/common/wide.h"
#include "win32/platform/iconFile.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace {

using contract::World;

constexpr std::size_t headerSize = 6;
constexpr std::size_t entrySize = 16;
constexpr std::size_t bitsAt = 6;
constexpr std::size_t sizeAt = 8;
constexpr std::size_t placeAt = 12;

/// What an icon paints over grey; empty without one. The icon goes.
std::vector<std::uint32_t> painted(HICON icon, int side) {
    if (icon == nullptr)
        return {};
    BITMAPINFO layout{};
    layout.bmiHeader = {sizeof layout.bmiHeader, side, -side, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* memory = nullptr;
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateDIBSection(dc, &layout, DIB_RGB_COLORS, &memory, nullptr, 0);
    const HGDIOBJ former = SelectObject(dc, bitmap);
    const RECT all{0, 0, side, side};
    FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
    DrawIconEx(dc, 0, 0, icon, side, side, 0, nullptr, DI_NORMAL);
    GdiFlush();
    const auto* const first = static_cast<const std::uint32_t*>(memory);
    std::vector<std::uint32_t> pixels(first, first + static_cast<std::size_t>(side) * side);
    SelectObject(dc, former);
    DeleteObject(bitmap);
    DeleteDC(dc);
    DestroyIcon(icon);
    return pixels;
}

HICON bySystem(const std::string& path, int side) {
    HICON icon = nullptr;
    UINT number = 0;
    const UINT count = PrivateExtractIconsA(path.c_str(), 0, side, side, &icon, &number, 1, 0);
    return count == 1 ? icon : nullptr;
}

std::optional<win32::IconFile> read(const std::string& path) {
    return win32::IconFile::read(win32::toWide(path));
}

/// What is read of a file with this content.
std::optional<win32::IconFile> readContent(World& world, const std::string& content) {
    world.writeFile(world.path("changed.ico"), content);
    return read(world.path("changed.ico"));
}

int opened = 0;
decltype(&CreateFileW) open = nullptr;

HANDLE WINAPI countedOpen(LPCWSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                          DWORD way, DWORD flags, HANDLE example) {
    ++opened;
    return open(path, access, sharing, security, way, flags, example);
}

UINT WINAPI notAsked(LPCWSTR, int, int, int, HICON*, UINT*, UINT, UINT) {
    FAIL_CHECK("the system reads the file");
    return 0;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/iconFile");

TEST_CASE("each size is the icon that the system reads for it") {
    const World world;
    for (const char* name : {"brd.ico", "sch.ico", "lbr.ico"}) {
        const std::string path = World::dataFile(name);
        const std::optional<win32::IconFile> file = read(path);
        REQUIRE(file.has_value());
        for (const int side : {16, 18, 20, 24, 32, 40, 48, 64}) {
            CAPTURE(side);
            const std::vector<std::uint32_t> seen = painted(file->icon(side), side);
            CHECK(seen.size() == static_cast<std::size_t>(side) * side);
            CHECK(seen == painted(bySystem(path, side), side));
        }
    }
}

TEST_CASE("both sizes of an icon take one look into its file") {
    const World world;
    const contract::ImportHook counted("CreateFileW", &countedOpen, open);
    const contract::ImportHook asked("PrivateExtractIconsW", reinterpret_cast<void*>(&notAsked));
    const std::string path = World::dataFile("brd.ico");
    opened = 0;
    platform::HICON large = platform::HICON::none;
    platform::HICON little = platform::HICON::none;
    REQUIRE(platform::ExtractIconExA(path.c_str(), 0, large, little) == 1);
    CHECK(opened == 1);
    platform::DestroyIcon(little);
}

TEST_CASE("a file that does not tell its pictures' bits has the same icons") {
    World world;
    const std::string path = World::dataFile("brd.ico");
    std::string content = contract::readWholeFile(path).value_or("");
    for (std::size_t entry = 0; entry < static_cast<unsigned char>(content[4]); ++entry)
        content[headerSize + entry * entrySize + bitsAt] = 0;
    const std::optional<win32::IconFile> file = readContent(world, content);
    REQUIRE(file.has_value());
    for (const int side : {16, 32})
        CHECK(painted(file->icon(side), side) == painted(bySystem(path, side), side));
}

TEST_CASE("a picture that does not stand in its file whole is none") {
    World world;
    const std::string whole = contract::readWholeFile(World::dataFile("brd.ico")).value_or("");
    CHECK_FALSE(readContent(world, "").has_value());
    CHECK_FALSE(readContent(world, "MZ" + whole).has_value());
    const std::size_t pictures = static_cast<unsigned char>(whole[4]);
    CHECK_FALSE(readContent(world, whole.substr(0, headerSize + pictures * entrySize)).has_value());
    for (std::size_t size = 0; size < headerSize + pictures * entrySize; ++size)
        CHECK_FALSE(readContent(world, whole.substr(0, size)).has_value());
    for (const std::size_t place : {sizeAt, sizeAt + 3, placeAt + 2, placeAt + 3}) {
        std::string content = whole;
        content[headerSize + place] = '\xFF';
        const std::optional<win32::IconFile> file = readContent(world, content);
        REQUIRE(file.has_value());
        CHECK(file->directory()[4] <= pictures);
        for (const int side : {16, 32, 48})
            CHECK(painted(file->icon(side), side).size() == static_cast<std::size_t>(side) * side);
    }
}

TEST_SUITE_END();
