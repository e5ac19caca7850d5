// The command line, read as the program that is stood in for reads it: the files' names have no quotes of
// their own and may hold blanks, and the first may stand right behind the closing quote of the command.
#pragma once
#include <string>

namespace commandLine {

struct Start {
    std::wstring command; // what stood between the quotes behind -C; empty without the option
    std::wstring sees;    // the word behind -D, which must come first: "system" or "monitor"; empty without
    std::wstring file;    // what is left, without blanks around and quotes; empty if nothing is
};

// The whole raw line, program included. The program's full path tells where an unquoted one ends.
Start parse(const std::wstring& line, const std::wstring& programPath);

} // namespace commandLine
