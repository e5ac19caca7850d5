#include "common/text.h"

#include <windows.h>

namespace text {

std::string narrow(std::wstring_view wide) {
    const int length = static_cast<int>(wide.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, result.data(), size, nullptr, nullptr);
    return result;
}

std::wstring widen(std::string_view narrow) {
    const int length = static_cast<int>(narrow.size());
    const int size = MultiByteToWideChar(CP_UTF8, 0, narrow.data(), length, nullptr, 0);
    std::wstring result(static_cast<size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, narrow.data(), length, result.data(), size);
    return result;
}

static char unescape(char letter) {
    switch (letter) {
    case 't':
        return '\t';
    case 'r':
        return '\r';
    case 'n':
        return '\n';
    default:
        return letter;
    }
}

std::vector<std::wstring> fields(std::string_view line) {
    std::vector<std::wstring> result;
    std::string field;
    for (size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '\t') {
            result.push_back(widen(field));
            field.clear();
        } else if (line[i] == '\\' && i + 1 < line.size()) {
            field += unescape(line[++i]);
        } else {
            field += line[i];
        }
    }
    result.push_back(widen(field));
    return result;
}

std::string escaped(std::wstring_view field) {
    std::string result;
    for (const char c : narrow(field)) {
        switch (c) {
        case '\\':
            result += "\\\\";
            break;
        case '\t':
            result += "\\t";
            break;
        case '\r':
            result += "\\r";
            break;
        case '\n':
            result += "\\n";
            break;
        default:
            result += c;
        }
    }
    return result;
}

} // namespace text
