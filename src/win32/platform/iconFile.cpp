#include "win32/platform/iconFile.h"

#include "win32/platform/iconSizes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace win32 {

namespace {

using Bytes = IconFile::Bytes;

constexpr std::array<unsigned char, 4> head = {0, 0, 1, 0};

/// An entry of a file is as long as one of a library up to this; then a file has its picture's place, a
/// library its number.
constexpr std::size_t sharedSize = 12;
constexpr std::size_t fileEntrySize = 16;
constexpr std::size_t bitsAt = 6; ///< of a pixel; 0 where the picture alone tells
constexpr std::size_t sizeAt = 8;

/// A picture is a bitmap without the file's header, or a PNG file.
constexpr std::size_t bitmapHeaderSize = 40;
constexpr std::size_t bitmapBitsAt = 14;
constexpr std::array<unsigned char, 4> pngMark = {0x89, 'P', 'N', 'G'};
constexpr unsigned char pngBits = 32;

/// What is larger the system may read.
constexpr LONGLONG mostBytes = 4LL << 20U;

std::size_t wordAt(const Bytes& bytes, std::size_t at) {
    return bytes[at] | std::size_t{bytes[at + 1]} << 8U;
}

std::size_t longAt(const Bytes& bytes, std::size_t at) {
    return wordAt(bytes, at) | wordAt(bytes, at + 2) << 16U;
}

template <std::size_t size>
bool standsAt(const Bytes& bytes, std::size_t at, const std::array<unsigned char, size>& mark) {
    return std::equal(mark.begin(), mark.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

/// Empty if the file cannot be read or is no .ico file.
Bytes contentOf(const std::wstring& path) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    Bytes bytes;
    LARGE_INTEGER size{};
    DWORD got = 0;
    if (GetFileSizeEx(file, &size) != FALSE && size.QuadPart <= mostBytes) {
        bytes.resize(static_cast<std::size_t>(size.QuadPart));
        if (ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr) == FALSE)
            got = 0;
    }
    CloseHandle(file);
    bytes.resize(got);
    const bool isIcon = bytes.size() >= iconDirectorySize && standsAt(bytes, 0, head);
    return isIcon ? bytes : Bytes();
}

} // namespace

std::optional<IconFile> IconFile::read(const std::wstring& path) {
    IconFile file;
    file.bytes_ = contentOf(path);
    if (file.bytes_.empty())
        return std::nullopt;
    file.readEntries(wordAt(file.bytes_, iconCountAt));
    if (file.pictures_.empty())
        return std::nullopt;
    return file;
}

void IconFile::readEntries(std::size_t count) {
    directory_.assign(bytes_.begin(), bytes_.begin() + static_cast<std::ptrdiff_t>(iconDirectorySize));
    for (std::size_t entry = 0; entry < count; ++entry) {
        const std::size_t at = iconDirectorySize + entry * fileEntrySize;
        if (at + fileEntrySize > bytes_.size())
            break;
        addEntry(at);
    }
    directory_[iconCountAt] = static_cast<unsigned char>(pictures_.size() & 0xFFU);
    directory_[iconCountAt + 1] = static_cast<unsigned char>(pictures_.size() >> 8U);
}

void IconFile::addEntry(std::size_t at) {
    const Place place{longAt(bytes_, at + sharedSize), longAt(bytes_, at + sizeAt)};
    if (place.size < bitmapHeaderSize || place.first > bytes_.size() ||
        place.size > bytes_.size() - place.first)
        return;
    const std::size_t entry = directory_.size();
    const auto first = bytes_.begin() + static_cast<std::ptrdiff_t>(at);
    directory_.insert(directory_.end(), first, first + static_cast<std::ptrdiff_t>(sharedSize));
    if (wordAt(directory_, entry + bitsAt) == 0)
        directory_[entry + bitsAt] =
            standsAt(bytes_, place.first, pngMark) ? pngBits : bytes_[place.first + bitmapBitsAt];
    pictures_.push_back(place);
    directory_.push_back(static_cast<unsigned char>(pictures_.size() & 0xFFU));
    directory_.push_back(static_cast<unsigned char>(pictures_.size() >> 8U));
}

HICON IconFile::icon(int side) const {
    // The system's calls read what they are given, though they take it as if they wrote.
    auto* const directory = const_cast<unsigned char*>(directory_.data());
    const int number = LookupIconIdFromDirectoryEx(directory, TRUE, side, side, LR_DEFAULTCOLOR);
    if (number < 1 || static_cast<std::size_t>(number) > pictures_.size())
        return nullptr;
    constexpr DWORD version = 0x00030000;
    const Place& place = pictures_[static_cast<std::size_t>(number) - 1];
    return CreateIconFromResourceEx(const_cast<unsigned char*>(bytes_.data()) + place.first,
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
