#include "core/editorSearch.h"

#include "core/windoInf.h"
#include "platform/user32.h"
#include "runtime/text.h"

#include <bit>
#include <string_view>

namespace core {

namespace {

using platform::HWND;
using store::EditorKind;

struct Search {
    EditorKind kind;
    std::string_view text; ///< in lower case
};

/// In the order in which they are asked for. One counts only if those of its kind ahead of it find nothing.
constexpr std::array<Search, editorSearches> searches = {{
    {EditorKind::board, "board -"},
    {EditorKind::schematic, "schematic -"},
    {EditorKind::schematic, "schaltplan -"},
    {EditorKind::library, "library -"},
    {EditorKind::library, "bibliothek -"},
}};

/// Titles with this text belong to EAGLE's windows that are no editors.
constexpr std::string_view excluded = "eagle:";

/// `title`: as far as a search looks at it. Of a longer one the caption may hold more: it does not begin with
/// blanks, and it counts characters.
bool isEditor(HWND window, std::string_view title) {
    if (isCut(title))
        return !runtime::holdsIgnoringCase(getWindowCaption(window), excluded);
    return !runtime::holdsIgnoringCase(title, excluded);
}

} // namespace

HWND EditorSearch::front(EditorKind kind) {
    if (!walked_ || kind < first_)
        walk(kind);
    Found found;
    for (std::size_t search = 0; search < searches.size() && found.window == HWND::none; ++search)
        if (searches[search].kind == kind) {
            searchTitle = searches[search].text;
            found = found_[search];
        }
    foundWindow = found.window;
    return found.isEditor ? found.window : HWND::none;
}

void EditorSearch::walk(EditorKind first) {
    walked_ = true;
    first_ = first;
    found_.fill({});
    platform::EnumWindows(onWindow, std::bit_cast<std::intptr_t>(this));
}

int EditorSearch::onWindow(HWND window, std::intptr_t self) {
    auto& walking = *std::bit_cast<EditorSearch*>(self);
    TitleBuffer buffer;
    const std::string_view title = titleForSearch(window, buffer);
    bool more = false;
    for (std::size_t search = 0; search < searches.size(); ++search) {
        if (!walking.isOpen(search))
            continue;
        if (runtime::holdsIgnoringCase(title, searches[search].text))
            walking.found_[search] = {window, isEditor(window, title)};
        else
            more = true;
    }
    return more ? 1 : 0;
}

/// Whether a search has still to find something that counts.
bool EditorSearch::isOpen(std::size_t search) const {
    const EditorKind kind = searches[search].kind;
    if (kind < first_ || found_[search].window != HWND::none)
        return false;
    return search == 0 || searches[search - 1].kind != kind || found_[search - 1].window == HWND::none;
}

} // namespace core
