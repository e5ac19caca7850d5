// Fonts of the controls. Equal ones are one, so that many windows need a few.
#pragma once

#include "forms/control.h"

#include <windows.h>

#include <memory>

namespace win32 {

/// A font, given back with the last that holds it.
struct OwnedFont {
    explicit OwnedFont(HFONT font) : handle(font) {}
    ~OwnedFont() {
        if (handle != nullptr)
            DeleteObject(handle);
    }
    OwnedFont(const OwnedFont&) = delete;
    OwnedFont& operator=(const OwnedFont&) = delete;

    const HFONT handle; ///< null if the system could not make it: its own font is taken then
};

/// The font as it is on a screen of so many dots to the inch. Never null.
std::shared_ptr<const OwnedFont> fontOf(const forms::Font& font, int dotsPerInch);

} // namespace win32
