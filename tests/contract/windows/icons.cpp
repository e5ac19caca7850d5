#include "contract/windows/icons.h"

#include "contract/windows/files.h"
#include "contract/world.h"

#include <windows.h>

#include <stdexcept>
#include <vector>

namespace contract {

namespace {

std::uint32_t number(const std::string& bytes, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t place = 0; place < size; ++place)
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes.at(at + place))) << (8 * place);
    return value;
}

bool isIcon(std::uintptr_t handle) {
    ICONINFO info{};
    if (GetIconInfo(reinterpret_cast<HICON>(handle), &info) == FALSE)
        return false;
    DeleteObject(info.hbmMask);
    if (info.hbmColor != nullptr)
        DeleteObject(info.hbmColor);
    return info.fIcon != FALSE;
}

} // namespace

forms::Picture pictureIn(const std::string& icoFile, int side) {
    constexpr std::size_t entrySize = 16;
    constexpr std::size_t headerSize = 40;
    const std::string bytes = readWholeFile(icoFile).value_or("");
    const std::size_t count = bytes.size() < 6 ? 0 : number(bytes, 4, 2);
    for (std::size_t entry = 0; entry < count; ++entry) {
        const std::size_t at = 6 + entry * entrySize;
        const auto edge = static_cast<std::uint32_t>(side);
        if (number(bytes, at, 1) != edge || number(bytes, at + 1, 1) != edge)
            continue;
        const std::size_t bitmap = number(bytes, at + 12, 4);
        if (number(bytes, bitmap, 4) != headerSize || number(bytes, bitmap + 14, 2) != 32)
            continue;
        std::vector<std::uint32_t> pixels;
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x) {
                const int place = (side - 1 - y) * side + x; // rows stand from the bottom up
                pixels.push_back(number(bytes, bitmap + headerSize + 4 * static_cast<std::size_t>(place), 4));
            }
        return {side, side, std::move(pixels)};
    }
    throw std::runtime_error("no such picture in " + icoFile);
}

int openIconHandles() {
    if (worldKind() == WorldKind::windows)
        return static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS));
    // Wine counts nothing here, but it takes a handle by its low half, and those can be tried.
    int count = 0;
    for (std::uintptr_t handle = 0x20; handle < 0x10000; handle += 2)
        count += isIcon(handle) ? 1 : 0;
    return count;
}

int openGraphics() {
    if (worldKind() == WorldKind::windows)
        return static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
    // As with the icons.
    int count = 0;
    for (std::uintptr_t handle = 1; handle < 0x10000; ++handle)
        count += GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0 ? 1 : 0;
    return count;
}

} // namespace contract
