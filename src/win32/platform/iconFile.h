// An .ico file, read once for every size that is asked of it: the system's own way reads it anew for each.
#pragma once

#include "win32/platform/iconSizes.h"

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace win32 {

class IconFile {
  public:
    using Bytes = std::vector<unsigned char>;

    /// Nothing of a file that cannot be read, is no .ico file or has no picture that stands in it whole.
    static std::optional<IconFile> read(const std::wstring& path);

    /// What the file tells of its pictures, as it would stand in a library.
    const IconDirectory& directory() const { return directory_; }

    /// An icon with edges of `side` pixels, of the picture that the system takes for these; null if it cannot
    /// be made. The caller's to destroy.
    HICON icon(int side) const;

  private:
    /// Where a picture stands in the file.
    struct Place {
        std::size_t first;
        std::size_t size;
    };

    void readEntries(std::size_t count);
    void addEntry(std::size_t at);

    Bytes bytes_;
    IconDirectory directory_;
    std::vector<Place> pictures_;
};

/// Whether a path is whole and has the ending of an .ico file.
bool namesIconFile(const std::wstring& path);

} // namespace win32
