// The tracker's search for editor windows.
#pragma once

#include "platform/types.h"
#include "store/buttonLists.h"

#include <array>
#include <cstdint>

namespace core {

/// Number of title searches that a tick can come to.
inline constexpr std::size_t editorSearches = 5;

/// The title searches of one tick, in the order of the kinds. One walk over the top-level windows answers
/// them all: it reads each title once and goes no further than one of the searches would.
class EditorSearch {
  public:
    /// The front editor of a kind: what findWindowByTitle gives for the kind's text, or for its second text
    /// if the first is in no title; none if neither is, or if the window found is one of EAGLE's that are no
    /// editors. searchTitle and foundWindow are as findWindowByTitle leaves them.
    platform::HWND front(store::EditorKind kind);

    /// The order of the windows may have changed: the next search walks anew.
    void forget() { walked_ = false; }

  private:
    struct Found {
        platform::HWND window = platform::HWND::none; ///< until the search finds something
        bool isEditor = false;
    };

    void walk(store::EditorKind first);
    static int onWindow(platform::HWND window, std::intptr_t self);
    [[nodiscard]] bool isOpen(std::size_t search) const;

    bool walked_ = false;
    store::EditorKind first_ = store::EditorKind::board; ///< kinds ahead of it are not looked for any more
    std::array<Found, editorSearches> found_ = {};       ///< of each search
};

} // namespace core
