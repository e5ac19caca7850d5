// Entries that type an EAGLE command, and the choice of an entry's icon.
#include "setup/frmSetup.h"

#include "store/iconExtract.h"
#include "store/iconReference.h"
#include "store/mends.h"
#include "store/pathTokens.h"
#include "store/settings.h"

namespace setup {

using store::ToolButton;
namespace entryType = store::entryType;

void frmSetup::btnAddEAGLE_Click(std::int16_t Index) {
    // Kept: the name of another routine.
    store::currentRoutine = "btnAdd_Click";
    const auto page = static_cast<std::size_t>(Index);
    noUpdate = -1;
    showEntryFields(Index, entryType::eagleCommand);
    chkAdd[3 * page].setValue(true);
    emptyFields(Index);
    txtTitle[page].setText("EAGLE Command");
    ToolButton& added = append(Index, entryType::eagleCommand);
    // Draws nothing: the icon comes when the row is selected.
    store::extractIconToPicture({}, 0, imgIcon[page]);
    picView[page].setPicture(imgIcon[page].image());
    added.icon = store::kindIcon(store::EditorKind{Index}).text();
    fillList(Index);
    selectLast(Index);
    refreshPreview(page);
    noUpdate = 0;
}

void frmSetup::btnIcon_Click(std::int16_t Index) {
    const auto page = static_cast<std::size_t>(Index);
    store::ButtonList& buttons = workList[page];
    // Without a selection this is the unused slot 0; a list that never had an entry has not even that.
    const std::int32_t slot = lstApps[page].listIndex() + 1;
    const std::string start = buttons.allocated() ? store::expandTokens(buttons[slot].icon) : std::string();
    const std::string chosen =
        store::chooseIconFile(start, window(), store::kindIcon(store::EditorKind{Index}));
    if (chosen.empty())
        return;
    useIcon(Index, chosen);
}

/// Shows an icon and gives it to the selected entry.
void frmSetup::useIcon(std::int16_t list, const std::string& reference) {
    const auto page = static_cast<std::size_t>(list);
    store::ButtonList& buttons = workList[page];
    // Kept: the preview keeps the old icon where the new one cannot be drawn, and a comma in its path is an
    // error.
    if (store::mended(store::Mend::unreadableRows)) {
        drawIcon(list, reference);
    } else {
        const auto icon = store::IconReference::parse(reference);
        store::extractIconToPicture(icon.file, icon.index, imgIcon[page]);
    }
    picView[page].setPicture(imgIcon[page].image());
    if (buttons.allocated())
        buttons[lstApps[page].listIndex() + 1].icon = reference;
    refreshPreview(page);
}

} // namespace setup
