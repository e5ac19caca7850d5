// A drawing surface in memory that the platform can draw on. Defined beside the platform operations.
#pragma once

#include "forms/picture.h"
#include "platform/types.h"

#include <memory>

namespace forms {

class Surface {
  public:
    /// Sizes in pixels, at least 1. Filled with `colour`.
    Surface(int width, int height, Colour colour);
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    platform::HDC dc() const;
    void clear(Colour colour);
    /// What has been drawn so far. Every pixel comes out opaque.
    Picture copy() const;

  private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace forms
