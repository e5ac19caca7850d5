// Pictures as bitmaps of the platform.
#pragma once

#include "forms/imageList.h"
#include "forms/picture.h"

#include <windows.h>

#include <commctrl.h>

namespace win32 {

/// A 32-bit bitmap of a picture, with its alpha. The caller's to delete.
HBITMAP bitmapOf(const forms::Picture& picture);

/// The platform's image list with the pictures of ours; pixels of the mask colour are clear. The caller's to
/// destroy.
HIMAGELIST nativeImageList(const forms::ImageList& list);

} // namespace win32
