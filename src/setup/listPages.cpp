// The three list pages: what the list boxes show, and every edit of an entry.
//
// Row r of a list box shows the record in slot r + 1 of its working copy. There is no pending edit: every
// keystroke goes straight into the record.
#include "setup/frmSetup.h"

#include "runtime/characters.h"
#include "runtime/numbers.h"
#include "runtime/runtimeError.h"
#include "setup/ObjFiledialog.h"
#include "store/iconExtract.h"
#include "store/iconReference.h"
#include "store/mends.h"
#include "store/settings.h"
#include "store/state.h"
#include "store/textCatalogue.h"

#include <utility>

namespace setup {

using store::ButtonList;
using store::languageOffset;
using store::LoadResString;
using store::ToolButton;
namespace entryType = store::entryType;
namespace dialogKind = store::dialogKind;

namespace {

std::size_t at(std::int16_t index) {
    return static_cast<std::size_t>(index);
}

/// Slot of the row that is selected; without a selection the unused slot 0.
std::int32_t selectedSlot(const forms::ListBox& rows) {
    return rows.listIndex() + 1;
}

/// The list without its removed records, if it has any live one.
ButtonList compacted(const ButtonList& list) {
    ButtonList kept;
    std::int32_t count = 0;
    for (std::int32_t slot = 1; slot <= list.upperBound(); ++slot)
        if (list[slot].live == 1) {
            kept.redim(++count);
            kept[count] = list[slot];
        }
    return count > 0 ? kept : list;
}

/// Slot of a live record by its position among them, from 1. Error 9 if there are not so many.
std::int32_t slotOfPosition(const ButtonList& list, std::int16_t position) {
    std::int16_t count = 0;
    for (std::int32_t slot = 1;; ++slot)
        if (list[slot].live == 1 && ++count == position)
            return slot;
}

} // namespace

void frmSetup::fillList(const std::int16_t& list) {
    forms::ListBox& rows = lstApps[at(list)];
    ButtonList& buttons = workList[at(list)];
    rows.clear();
    if (!buttons.allocated())
        return;
    bool removed = false;
    const std::int16_t bound = runtime::roundToInt16(buttons.upperBound());
    for (std::int32_t slot = 1; slot <= bound; ++slot)
        if (buttons[slot].live == 1)
            rows.addItem(buttons[slot].name);
        else
            removed = true;
    if (removed)
        buttons = compacted(buttons);
}

/// Captions and states of a page's fields for an entry of the type given.
void frmSetup::showEntryFields(std::int16_t list, const std::int16_t& type) {
    const std::size_t page = at(list);
    const bool edits = type == entryType::externalProgram || type == entryType::eagleCommand;
    if (type == entryType::externalProgram)
        labPath[page].setCaption(LoadResString(1002 + languageOffset));
    else if (type == entryType::eagleCommand)
        labPath[page].setCaption(LoadResString(1052 + languageOffset));
    for (forms::TextBox* box : {&txtTitle[page], &txtPath[page], &txtTooltip[page]})
        box->setEnabled(edits);
    labPath[page].setEnabled(edits);
    labTooltip[page].setEnabled(edits);
    // Only the option buttons' click enables these.
    txtPara[page].setEnabled(false);
    labPara[page].setEnabled(false);
    btnIcon[page].setEnabled(edits);
    fraCommand[page].setEnabled(edits);
    // Kept: the type, not the page, says whose option buttons are meant.
    const bool own = store::mended(store::Mend::optionButtons);
    const std::size_t triple = own ? 3 * page : edits ? 3 * at(type) : 6;
    for (std::size_t option = triple; option < triple + 3; ++option)
        chkAdd[option].setEnabled(edits);
}

/// Draws the icon of a reference on the page's surface; of one without a comma, none. Errors of the index:
/// 13, 6. Kept: what cannot be drawn shows no icon.
void frmSetup::drawIcon(std::int16_t list, const std::string& reference) {
    if (store::mended(store::Mend::unreadableRows)) {
        if (!store::drawReference(reference, imgIcon[at(list)]))
            store::extractIconToPicture(store::kindIcon(store::EditorKind{list}).file, 0, imgIcon[at(list)]);
        return;
    }
    if (reference.find(',') == std::string::npos)
        return;
    const auto icon = store::IconReference::parse(reference);
    store::extractIconToPicture(icon.file, icon.index, imgIcon[at(list)]);
}

void frmSetup::lstApps_Click(std::int16_t Index) {
    const std::size_t page = at(Index);
    imgIcon[page].setPicture({});
    // The events below write into the lists.
    const ToolButton entry = workList[page][selectedSlot(lstApps[page])];
    showEntryFields(Index, entry.type);
    txtTitle[page].setText(entry.name);
    txtPath[page].setText(entry.path);
    txtTooltip[page].setText(entry.tooltip);
    txtPara[page].setText(entry.param);
    // Kept: the first page's option button, whichever list is shown.
    if (store::mended(store::Mend::optionButtons))
        showDialogKind(Index);
    else if (at(entry.dialog) >= chkAdd.size()) // one below 0, too
        throw runtime::RuntimeError(runtime::ErrorNumber::subscriptOutOfRange);
    else
        chkAdd[at(entry.dialog)].setValue(true);
    if (entry.type != entryType::separator)
        drawIcon(Index, entry.icon);
    refreshPreview(page);
    picView[page].setPicture(imgIcon[page].image());
}

void frmSetup::resolutionChanged() {
    Form::resolutionChanged();
    for (std::size_t page = 0; page < listPages; ++page)
        if (lstApps[page].listIndex() >= 0 && !picView[page].picture().empty() &&
            store::drawReference(workList[page][selectedSlot(lstApps[page])].icon, imgIcon[page]))
            picView[page].setPicture(imgIcon[page].image());
}

/// A text that the user types goes into the selected record at once.
void frmSetup::storeText(std::int16_t Index, std::string ToolButton::*field, const forms::TextBox& box) {
    const forms::ListBox& rows = lstApps[at(Index)];
    if (rows.listIndex() >= 0 && noUpdate == 0)
        workList[at(Index)][selectedSlot(rows)].*field = box.text();
}

void frmSetup::txtTitle_Change(std::int16_t Index) {
    storeText(Index, &ToolButton::name, txtTitle[at(Index)]);
}

void frmSetup::txtPath_Change(std::int16_t Index) {
    storeText(Index, &ToolButton::path, txtPath[at(Index)]);
}

void frmSetup::txtTooltip_Change(std::int16_t Index) {
    storeText(Index, &ToolButton::tooltip, txtTooltip[at(Index)]);
}

void frmSetup::txtPara_Change(std::int16_t Index) {
    storeText(Index, &ToolButton::param, txtPara[at(Index)]);
}

/// Kept: the page whose selection counts is a third of the index, rounded; the list written to is the one
/// with the number of the option; and the fields that follow are those of yet another page. Only the first
/// page's buttons do anything.
void frmSetup::chkAdd_Click(std::int16_t Index) {
    if (store::mended(store::Mend::optionButtons)) {
        storeDialogKind(Index);
        return;
    }
    const std::size_t page = at(runtime::roundToInt16(Index / 3.0));
    // The last button's page does not exist.
    if (page >= listPages || lstApps[page].listIndex() < 0 || noUpdate != 0)
        return;
    if (Index > dialogKind::fileDialog)
        return;
    ButtonList& written = workList[at(Index)];
    if (written.allocated())
        written[selectedSlot(lstApps[at(Index)])].dialog = Index;
    const std::size_t follows = Index == dialogKind::fileDialog ? 1 : 0;
    labPara[follows].setEnabled(Index != dialogKind::none);
    txtPara[follows].setEnabled(Index != dialogKind::none);
}

/// Appends a live record without an icon or texts but those that stand in the fields of title and path.
ToolButton& frmSetup::append(std::int16_t list, std::int16_t type) {
    ButtonList& buttons = workList[at(list)];
    buttons.redim(buttons.upperBound() + 1);
    ToolButton& added = buttons[buttons.upperBound()];
    added.live = 1;
    added.rowNumber = runtime::roundToInt16(buttons.upperBound());
    added.name = txtTitle[at(list)].text();
    added.path = txtPath[at(list)].text();
    added.type = type;
    return added;
}

void frmSetup::emptyFields(std::int16_t list) {
    for (forms::TextBox* box :
         {&txtTitle[at(list)], &txtPath[at(list)], &txtTooltip[at(list)], &txtPara[at(list)]})
        box->setText({});
}

void frmSetup::selectLast(std::int16_t list) {
    lstApps[at(list)].setListIndex(lstApps[at(list)].listCount() - 1);
}

void frmSetup::btnAdd_Click(std::int16_t Index) {
    store::currentRoutine = "btnAdd_Click";
    beginProgram(Index);
    ObjFiledialog files;
    files.setFilename("*.EXE;*.BAT;*.COM;*.PIF");
    files.setFilter(LoadResString(1051 + languageOffset));
    files.setDialogTitle(LoadResString(1050 + languageOffset));
    files.setFlags(fileDialogFlags);
    files.ShowOpen(window());
    const std::string& file = files.Filename();
    if (!file.empty())
        addProgram(Index, file);
    endProgram(Index);
}

/// Fields for a program to come; until endProgram their events change nothing.
void frmSetup::beginProgram(std::int16_t list) {
    noUpdate = -1;
    showEntryFields(list, entryType::externalProgram);
    chkAdd[3 * at(list)].setValue(true);
    emptyFields(list);
}

void frmSetup::addProgram(std::int16_t list, const std::string& file) {
    const std::size_t page = at(list);
    txtTitle[page].setText(file.substr(runtime::findLastText(file, "\\") + 1));
    txtPath[page].setText(file);
    ToolButton& added = append(list, entryType::externalProgram);
    store::extractIconToPicture(file, 0, imgIcon[page]);
    picView[page].setPicture(imgIcon[page].image());
    added.icon = store::IconReference{file}.text();
    fillList(list);
}

void frmSetup::endProgram(std::int16_t list) {
    selectLast(list);
    // Kept: after a cancelled dialog the fields stay empty, and the option buttons as they were set above, if
    // the last row was selected before.
    if (store::mended(store::Mend::optionButtons))
        showDialogKind(list);
    refreshPreview(at(list));
    noUpdate = 0;
}

void frmSetup::btnAddSep_Click(std::int16_t Index) {
    store::currentRoutine = "btnAddSep_Click";
    noUpdate = -1;
    const std::size_t page = at(Index);
    showEntryFields(Index, entryType::separator);
    chkAdd[3 * page].setValue(true);
    emptyFields(Index);
    txtTitle[page].setText("----------------------------------");
    append(Index, entryType::separator);
    picView[page].setPicture({});
    fillList(Index);
    selectLast(Index);
    noUpdate = 0;
}

void frmSetup::btnRemove_Click(std::int16_t Index) {
    const std::size_t page = at(Index);
    if (lstApps[page].listCount() == 0)
        return;
    workList[page][selectedSlot(lstApps[page])].live = 0;
    // Kept: the page's number is passed as the type.
    showEntryFields(Index, Index);
    chkAdd[3 * page].setValue(true);
    emptyFields(Index);
    picView[page].setPicture({});
    fillList(Index);
}

void frmSetup::btnH_Click(std::int16_t Index) {
    forms::ListBox& rows = lstApps[at(Index)];
    const int row = rows.listIndex();
    if (rows.listCount() < 2 || row < 1)
        return;
    swapEntries(Index, static_cast<std::int16_t>(row), static_cast<std::int16_t>(row + 1));
    fillList(Index);
    rows.setListIndex(row - 1);
}

void frmSetup::btnL_Click(std::int16_t Index) {
    forms::ListBox& rows = lstApps[at(Index)];
    const int row = rows.listIndex();
    if (rows.listCount() < 2 || row < 0 || row >= rows.listCount() - 1)
        return;
    swapEntries(Index, static_cast<std::int16_t>(row + 2), static_cast<std::int16_t>(row + 1));
    fillList(Index);
    rows.setListIndex(row + 1);
}

/// Exchanges two records by their positions among the live ones, from 1.
void frmSetup::swapEntries(std::int16_t list, const std::int16_t& a, const std::int16_t& b) {
    ButtonList& buttons = workList[at(list)];
    std::swap(buttons[slotOfPosition(buttons, a)], buttons[slotOfPosition(buttons, b)]);
}

} // namespace setup
