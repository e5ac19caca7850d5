#include "eagle/kinds.h"

#include <windows.h>

namespace kinds {

const KindFacts& facts(Kind kind) {
    return table[static_cast<size_t>(kind)];
}

static bool same(std::wstring_view a, std::wstring_view b) {
    return CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(b.size()),
                                TRUE) == CSTR_EQUAL;
}

std::optional<Kind> fromName(std::wstring_view name) {
    for (const KindFacts& row : table) {
        if (same(row.name, name))
            return row.kind;
    }
    return std::nullopt;
}

std::optional<Kind> fromFile(std::wstring_view file) {
    const size_t dot = file.rfind(L'.');
    if (dot == std::wstring_view::npos)
        return std::nullopt;
    for (const KindFacts& row : table) {
        if (same(row.extension, file.substr(dot)))
            return row.kind;
    }
    return std::nullopt;
}

std::wstring title(Kind kind, const std::wstring& file, bool german) {
    const KindFacts& row = facts(kind);
    const std::wstring part = kind == Kind::library ? L" (package)" : L"";
    return std::wstring(german ? row.german : row.english) + L" - " + file + part + L" - " + productName;
}

} // namespace kinds
