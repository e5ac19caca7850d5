#include "win32/platform/iconFile.h"

#include "win32/common/owned.h"

#include <cstdint>
#include <string_view>
#include <utility>

namespace win32 {

namespace {

/// What is larger the system may read.
constexpr LONGLONG mostBytes = 4LL << 20U;

/// Empty if the file cannot be read.
forms::IcoFile contentOf(const std::wstring& path) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    const Owned<HANDLE> open(file);
    forms::IcoFile content;
    LARGE_INTEGER size{};
    DWORD got = 0;
    if (GetFileSizeEx(file, &size) != FALSE && size.QuadPart <= mostBytes) {
        content.resize(static_cast<std::size_t>(size.QuadPart));
        if (ReadFile(file, content.data(), static_cast<DWORD>(content.size()), &got, nullptr) == FALSE)
            got = 0;
    }
    content.resize(got);
    return content;
}

} // namespace

std::optional<IconFile> IconFile::read(const std::wstring& path) {
    forms::IcoFile content = contentOf(path);
    std::optional<forms::IconFilePictures> found = forms::iconFilePictures(content);
    if (!found)
        return std::nullopt;
    return IconFile(std::move(content), std::move(*found));
}

HICON IconFile::icon(int side) const {
    // The system's calls read what they are given, though they take it as if they wrote.
    auto* const directory = const_cast<unsigned char*>(found_.directory.data());
    const int number = LookupIconIdFromDirectoryEx(directory, TRUE, side, side, LR_DEFAULTCOLOR);
    if (number < 1 || static_cast<std::size_t>(number) > found_.pictures.size())
        return nullptr;
    constexpr DWORD version = 0x00030000;
    const forms::IconFilePictures::Place& place = found_.pictures[static_cast<std::size_t>(number) - 1];
    return CreateIconFromResourceEx(const_cast<unsigned char*>(content_.data()) + place.first,
                                    static_cast<DWORD>(place.size), TRUE, version, side, side,
                                    LR_DEFAULTCOLOR);
}

bool namesIconFile(const std::wstring& path) {
    constexpr std::wstring_view ending = L".ico";
    const bool whole = path.starts_with(L"\\\\") || path.substr(0, 3).ends_with(L":\\");
    return whole && path.size() > ending.size() &&
           lstrcmpiW(path.c_str() + (path.size() - ending.size()), ending.data()) == 0;
}

} // namespace win32
