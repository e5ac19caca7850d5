// The ANSI code page of the simulated desktop: the environment variable KESTREL_CODE_PAGE names it, one of
// 1250, 1251, 1252, 932 and 65001; 1252 where it does not.
#pragma once

#include <span>

namespace desktop {

/// Lower case in place. A letter whose small one has another number of bytes stays.
void foldCase(std::span<char> text);

} // namespace desktop
