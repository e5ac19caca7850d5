// Pictures as bitmaps of the platform.
#pragma once

#include "forms/imageList.h"
#include "forms/picture.h"

#include <windows.h>

#include <commctrl.h>

#include <cstdint>

namespace win32 {

/// How the pixels of our pictures stand in memory: 32 bits each, rows from the top.
BITMAPINFO bitmapLayout(int width, int height);

/// An empty bitmap of that layout; `pixels` gets its memory, null on failure. The caller's to delete.
HBITMAP makeBitmap(int width, int height, std::uint32_t*& pixels);

/// A 32-bit bitmap of a picture, with its alpha. The caller's to delete.
HBITMAP bitmapOf(const forms::Picture& picture);

/// An icon of a picture: it carries the opacity to a button, which a bitmap would not. The caller's to
/// destroy.
HICON iconOf(const forms::Picture& picture);

/// The platform's image list with the pictures of ours; pixels of the mask colour are clear. Null if
/// the system cannot make it whole. The caller's to destroy.
HIMAGELIST nativeImageList(const forms::ImageList& list);

} // namespace win32
