// An .ico file, read once for every size that is asked of it: the system's own way reads it anew for each.
#pragma once

#include "forms/iconDirectory.h"

#include <windows.h>

#include <optional>
#include <string>
#include <utility>

namespace win32 {

class IconFile {
  public:
    /// Nothing of a file that cannot be read, is no .ico file or has no picture that stands in it whole.
    static std::optional<IconFile> read(const std::wstring& path);

    /// What the file tells of its pictures, as it would stand in a library.
    const forms::IconDirectory& directory() const { return found_.directory; }

    /// An icon with edges of `side` pixels, of the picture that the system takes for these; null if it cannot
    /// be made. The caller's to destroy.
    HICON icon(int side) const;

  private:
    IconFile(forms::IcoFile content, forms::IconFilePictures found)
        : content_(std::move(content)), found_(std::move(found)) {}

    forms::IcoFile content_;
    forms::IconFilePictures found_;
};

/// Whether a path is whole and has the ending of an .ico file.
bool namesIconFile(const std::wstring& path);

} // namespace win32
