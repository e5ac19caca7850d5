// The configured buttons of the three toolbars, in memory and in the settings file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace store {

enum class EditorKind { board = 0, schematic = 1, library = 2 };
inline constexpr std::array<EditorKind, 3> editorKinds = {EditorKind::board, EditorKind::schematic,
                                                          EditorKind::library};

/// What a click on a row's button does: ToolButton::type.
namespace entryType {
inline constexpr std::int16_t externalProgram = 0;
inline constexpr std::int16_t eagleCommand = 1;
inline constexpr std::int16_t separator = 2;
inline constexpr std::int16_t unreadable = -1; ///< of a row with ToolButton::asRead
} // namespace entryType

/// What asks for an argument before that: ToolButton::dialog.
namespace dialogKind {
inline constexpr std::int16_t none = 0;
inline constexpr std::int16_t inputBox = 1;
inline constexpr std::int16_t fileDialog = 2;
} // namespace dialogKind

/// Texts of `dialog` and `type` in the settings file.
struct RowNumbers {
    std::string dialog;
    std::string type;

    bool operator==(const RowNumbers&) const = default;
};

struct ToolButton {
    std::string name;
    std::string path;
    std::string tooltip;
    std::string param;
    std::string icon;
    std::int16_t rowNumber = 0;
    std::int16_t dialog = dialogKind::none;         ///< another number in the settings file stays
    std::int16_t type = entryType::externalProgram; ///< likewise
    std::int16_t live = 0;                          ///< 1 for a row that exists
    /// Of a row whose `type` cannot be read: it is written back as it was read. Only with
    /// Mend::unreadableRows.
    std::optional<RowNumbers> asRead = std::nullopt;

    bool operator==(const ToolButton&) const = default;
};

/// Whether a row of a list has its place in the toolbars.
inline bool standsInToolbars(const ToolButton& button) {
    return button.live == 1 && !button.asRead;
}

/// A growable array of rows, counted from 1; element 0 is never used. An array that has never received a row
/// is unallocated, which is not the same as one without a live row.
class ButtonList {
  public:
    bool allocated() const { return !rows_.empty(); }
    /// Highest index; 0 if unallocated.
    std::int32_t upperBound() const {
        return rows_.empty() ? 0 : static_cast<std::int32_t>(rows_.size()) - 1;
    }
    /// Resizes to the range 0 to `bound`, keeping contents.
    void redim(std::int32_t bound) { rows_.resize(static_cast<std::size_t>(bound) + 1); }
    /// Error 9 for an index beyond the bounds.
    ToolButton& operator[](std::int32_t index);
    const ToolButton& operator[](std::int32_t index) const;

    bool operator==(const ButtonList&) const = default;

  private:
    std::vector<ToolButton> rows_;
};

inline ButtonList boardButtons;
inline ButtonList schemButtons;
inline ButtonList librButtons;

/// What tells the lists apart.
struct ListOfKind {
    const char* section;
    std::int16_t selector; ///< 0 is all three, 1 is not used
    ButtonList* buttons;
};
const ListOfKind& listOf(EditorKind kind);

/// Loads one list from the settings file, row by row until a name is missing. If row 1 is missing the list
/// keeps what it held. Error 13 or 6 for a row without a proper `dialog` or `type`; with Mend::unreadableRows
/// such a `dialog` is 0, and such a `type` is kept as it stands.
void loadList(EditorKind kind);

/// Loads the lists that `selector` names.
void loadButtonLists(const std::int16_t& selector);

/// Writes the lists that `selector` names. Gives -1 if a live row's icon or path holds "{eaglepath}", else 0.
std::int16_t saveButtonLists(const std::int16_t& selector);

} // namespace store
