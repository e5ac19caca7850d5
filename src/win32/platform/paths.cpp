#include "win32/platform/paths.h"

#include "win32/common/wide.h"

#include <optional>

namespace win32 {

namespace {

/// The text of a path that the code page has all letters of.
std::optional<std::string> expressed(const std::wstring& path) {
    std::string text = toText(path);
    return toWide(text) == path ? std::optional(std::move(text)) : std::nullopt;
}

std::optional<std::string> expressedShort(const std::wstring& path) {
    const std::wstring name = shortName(path);
    return name.empty() ? std::nullopt : expressed(name);
}

const std::wstring& programFolder() {
    static const std::wstring folder = [] {
        const std::size_t slash = ownPath().find_last_of(L'\\');
        constexpr std::size_t root = 2; // the place of the backslash in a drive root
        return ownPath().substr(0, slash == root ? root + 1 : slash);
    }();
    return folder;
}

bool standsIn() {
    static const bool stands = programFolderText() == folderStandIn;
    return stands;
}

bool isInProgramFolder(const std::wstring& path) {
    const std::wstring folder = programFolder() + L'\\';
    const auto length = static_cast<int>(folder.size());
    return path.size() > folder.size() &&
           CompareStringOrdinal(path.data(), length, folder.data(), length, TRUE) == CSTR_EQUAL;
}

} // namespace

const std::wstring& ownPath() {
    static const std::wstring path = [] {
        std::wstring found(longestPath, L'\0');
        found.resize(GetModuleFileNameW(nullptr, found.data(), longestPath));
        return found;
    }();
    return path;
}

bool holdsStandIn(std::string_view text) {
    return standsIn() && text.find(folderStandIn) != std::string_view::npos;
}

std::wstring widePath(std::string_view text) {
    std::wstring path = toWide(text);
    if (!standsIn())
        return path;
    static const std::wstring token = toWide(folderStandIn);
    for (std::size_t found = path.find(token); found != std::wstring::npos;
         found = path.find(token, found + programFolder().size()))
        path.replace(found, token.size(), programFolder());
    return path;
}

std::string pathText(const std::wstring& path) {
    if (const auto text = expressed(path))
        return *text;
    if (standsIn() && isInProgramFolder(path))
        if (const auto rest = expressed(path.substr(programFolder().size())))
            return std::string(folderStandIn) + *rest;
    return expressedShort(path).value_or(toText(path));
}

const std::string& programFolderText() {
    static const std::string text = [] {
        if (const auto whole = expressed(programFolder()))
            return *whole;
        return expressedShort(programFolder()).value_or(std::string(folderStandIn));
    }();
    return text;
}

} // namespace win32
