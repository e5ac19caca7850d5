// The three kinds of editor windows, and how their titles are made.
#pragma once
#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace kinds {

enum class Kind { board, schematic, library };

struct KindFacts {
    Kind kind;
    const wchar_t* name;      // as the driver's orders call it
    const wchar_t* extension; // of its files
    const wchar_t* english;   // the word that its titles begin with
    const wchar_t* german;
};

inline constexpr std::array<KindFacts, 3> table = {{
    {Kind::board, L"board", L".brd", L"Board", L"Board"},
    {Kind::schematic, L"schematic", L".sch", L"Schematic", L"Schaltplan"},
    {Kind::library, L"library", L".lbr", L"Library", L"Bibliothek"},
}};

const KindFacts& facts(Kind kind);

std::optional<Kind> fromName(std::wstring_view name);
// By the file's extension, in any case.
std::optional<Kind> fromFile(std::wstring_view file);

std::wstring title(Kind kind, const std::wstring& file, bool german);

inline constexpr wchar_t productName[] = L"EAGLE 5.11.0 Light";

} // namespace kinds
