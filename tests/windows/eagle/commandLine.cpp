#include "eagle/commandLine.h"

#include <windows.h>

#include <string_view>

namespace commandLine {

static std::wstring trimmed(const std::wstring& text, const wchar_t* letters) {
    const size_t begin = text.find_first_not_of(letters);
    if (begin == std::wstring::npos)
        return L"";
    return text.substr(begin, text.find_last_not_of(letters) - begin + 1);
}

// What follows the program's own name.
static std::wstring tailOf(const std::wstring& line, const std::wstring& programPath) {
    if (!line.empty() && line[0] == L'"') {
        const size_t end = line.find(L'"', 1);
        return end == std::wstring::npos ? L"" : line.substr(end + 1);
    }
    const std::wstring begin = line.substr(0, programPath.size());
    if (CompareStringOrdinal(begin.c_str(), -1, programPath.c_str(), -1, TRUE) == CSTR_EQUAL)
        return line.substr(programPath.size());
    const size_t blank = line.find(L' ');
    return blank == std::wstring::npos ? L"" : line.substr(blank);
}

Start parse(const std::wstring& line, const std::wstring& programPath) {
    std::wstring rest = trimmed(tailOf(line, programPath), L" \t");
    Start start;
    constexpr std::wstring_view sees = L"-D ";
    if (rest.starts_with(sees)) {
        rest = rest.substr(sees.size());
        start.sees = rest.substr(0, rest.find(L' '));
        rest = trimmed(rest.substr(start.sees.size()), L" \t");
    }
    if (rest.starts_with(L"-C")) {
        const size_t open = rest.find(L'"');
        const size_t close = open == std::wstring::npos ? open : rest.find(L'"', open + 1);
        if (close == std::wstring::npos)
            return start;
        start.command = rest.substr(open + 1, close - open - 1);
        rest = rest.substr(close + 1);
    }
    start.file = trimmed(rest, L" \t\"");
    return start;
}

} // namespace commandLine
