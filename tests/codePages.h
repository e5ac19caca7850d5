// Texts of the tests beyond ASCII. The tests run in several code pages: what is written here in Windows-1252
// is in the one in force, as far as that has its letters.
#pragma once

#include "platform/codePage.h"
#include "runtime/western.h"

#include <string>

using runtime::western;

/// A word of letters that have a byte which alone is a mark, where the code page has such letters: the
/// section sign's, in 932 also across two letters, and those of backslash, bar, braces, tilde and caret too.
inline std::string treacherous() {
    switch (platform::GetACP()) {
    case 932:
        return "\x83\x81\x98\x41\x97\xA7\x83\\\x83|\x83{\x83}\x83~\x83^";
    case platform::utf8CodePage:
        return "\xC3\xA7\xC3\x9F";
    default:
        return western("\xE4\xF6");
    }
}

/// Whether the code page in force has this character.
inline bool codePageHas(char16_t character) {
    return platform::toUtf16(platform::toAnsi({&character, 1})) == std::u16string_view(&character, 1);
}
