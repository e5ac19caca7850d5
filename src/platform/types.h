// Value types of the platform operations: handles and rectangles, independent of any platform header.
//
// A window that EAGLE owns can die at any moment and its handle may come back as another window, so a
// handle is only ever observed: it is a number with a type of its own, never an owner.
#pragma once

#include <cstdint>

namespace platform {

enum class HWND : std::uintptr_t { none = 0 };
enum class HICON : std::uintptr_t { none = 0 };
enum class HDC : std::uintptr_t { none = 0 };
enum class HANDLE : std::uintptr_t { none = 0 };

/// A rectangle in pixels; right and bottom lie outside. Whose coordinates it is in (screen, or client of
/// a window) is said where one is used.
struct RECT {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    bool operator==(const RECT&) const = default;
};

} // namespace platform
