// Shortcuts: files of the shell that lead to another file. Texts are in the ANSI code page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

struct Shortcut {
    std::string target; ///< full path; empty if it leads to no file
    std::string arguments;
};

/// What a shortcut says. Nobody looks whether its target is there. Nothing for a file that is none or cannot
/// be read; one on a host that does not answer counts as missing, as files.h tells.
std::optional<Shortcut> readShortcut(std::string_view path);

} // namespace platform
