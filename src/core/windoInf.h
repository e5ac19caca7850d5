// Knowledge of other programs' windows: titles, order, processes.
//
// findWindowByTitle talks to its callback through searchTitle and foundWindow and is not re-entrant.
#pragma once

#include "platform/types.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace core {

/// Lower-case text of the latest title search.
inline std::string searchTitle;
/// Result of the latest title search.
inline platform::HWND foundWindow = platform::HWND::none;

/// The first top-level window, in window order, whose title holds the text, ignoring case; none if there is
/// none or the text is empty. Only the first 255 characters of a title count.
platform::HWND findWindowByTitle(std::string_view text);

/// A title as far as a search looks at it, its first 255 characters; it stands in the buffer. Allocates
/// nothing.
using TitleBuffer = std::array<char, 256>;
std::string_view titleForSearch(platform::HWND window, TitleBuffer& buffer);
/// Whether such a title may be longer than it shows.
inline bool isCut(std::string_view title) {
    return title.size() + 1 == TitleBuffer{}.size();
}

/// Callback of findWindowByTitle: 0 on a match, else 1. Allocates nothing.
int enumTitleCallback(platform::HWND window, std::intptr_t extra);

/// Title of a window without leading blanks, at most 255 characters; empty for a dead window.
std::string getWindowCaption(platform::HWND window);

/// What stands between the first two " - " of a window's title; empty with fewer than two.
std::string parseFileFromTitle(platform::HWND window);
/// The same of a title.
std::string fileOfTitle(std::string_view title);

/// 1 if a process runs whose executable's name holds "eagle.exe", ignoring case, else 0.
std::int16_t isEagleRunning();

/// Raises a window among its siblings; with a non-zero flag above all others for good.
void setWindowOnTop(platform::HWND window, std::int16_t flag);

} // namespace core
