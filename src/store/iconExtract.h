// Icons of files: drawing one into a picture box, and letting the user pick one.
#pragma once

#include "forms/pictureBox.h"
#include "platform/types.h"
#include "store/iconReference.h"

#include <cstdint>
#include <string>

namespace store {

/// Draws the small icon with number `index` of a file (tokens allowed) into the picture box, with a margin of
/// one pixel, both as large as the box's form shows them. On any failure the box keeps what it showed, and
/// the answer is false.
bool extractIconToPicture(const std::string& file, std::int32_t index, forms::PictureBox& picture);

/// The same by a reference; one that cannot be read is a failure like any other.
bool drawReference(const std::string& reference, forms::PictureBox& picture);

/// Lets the user pick an icon, starting from `reference` (file, comma, index, or empty). Gives the new
/// reference, or empty text on cancel. A chooser of our own stands in where the shell has none. Error 9 for a
/// reference without a comma; with Mend::unreadableRows one that cannot be read, or none, begins with
/// `otherwise` instead.
std::string chooseIconFile(const std::string& reference, platform::HWND owner,
                           const IconReference& otherwise = {});

} // namespace store
