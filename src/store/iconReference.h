// The icon of a button, as its field `icon` names it: a file, a comma and the number of an icon in it.
#pragma once

#include "store/buttonLists.h"

#include <cstdint>
#include <optional>
#include <string>

namespace store {

struct IconReference {
    std::string file;       ///< executable, library or .ico file; may hold path tokens
    std::int32_t index = 0; ///< from 0

    /// Takes a reference apart. Kept: it is cut at each comma and what stands behind the second one does not
    /// count, so that a file with a comma in its name gives a wrong file and a wrong index. Error 9 without a
    /// comma, the empty text among it; of an index that is no number 13, of one beyond its range 6. With
    /// Mend::unreadableRows it is cut at its last comma.
    static IconReference parse(const std::string& text);
    /// The same, and none where that is an error.
    static std::optional<IconReference> readable(const std::string& text);

    std::string text() const;

    bool operator==(const IconReference&) const = default;
};

/// The icon beside the program that stands for an editor kind.
IconReference kindIcon(EditorKind kind);

} // namespace store
