// Titles of windows, as the system keeps them.
#pragma once

#include <windows.h>

#include <array>
#include <string>
#include <string_view>

namespace win32 {

/// A window's title in the ANSI code page. No window is asked for it, whoever's it is: one of another thread
/// of our own, the help's for instance, would be sent a message and waited for. Takes no memory from the heap
/// for a title of usual length: each tick reads those of all windows.
class Title {
  public:
    explicit Title(HWND window);
    Title(const Title&) = delete;
    Title& operator=(const Title&) = delete;

    [[nodiscard]] std::string_view text() const { return text_; }

  private:
    static constexpr int usual = 512;   ///< characters with the NUL
    static constexpr int mostOfOne = 3; ///< bytes in the code page, for each unit of UTF-16
    std::array<char, usual * mostOfOne> buffer_;
    std::string longer_;
    std::string_view text_;
};

} // namespace win32
