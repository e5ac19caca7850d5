// The list pages by keyboard and clipboard. Removing and moving are what the buttons do; what comes into a
// list is appended as the buttons append it, then moved up behind the row that was selected.
#include "setup/frmSetup.h"

#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "runtime/runtimeError.h"
#include "store/rowText.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace setup {

using platform::Key;
using store::ToolButton;

namespace {

/// Rows that a list can have: they are counted in 16 bits.
constexpr std::int32_t mostRows = std::numeric_limits<std::int16_t>::max();

bool isControl(const platform::KeyStroke& stroke, char32_t letter) {
    return stroke.control && stroke.key == Key::none && stroke.character == letter;
}

bool isControl(const platform::KeyStroke& stroke, Key key) {
    return stroke.control && stroke.key == key;
}

} // namespace

/// True for a key that means something here, whether it can do anything now or not.
bool frmSetup::listKey(std::int16_t Index, const platform::KeyStroke& stroke) {
    if (stroke.shift || stroke.alt)
        return false;
    if (stroke.key == Key::deleteKey && !stroke.control)
        removeSelected(Index);
    else if (isControl(stroke, Key::up))
        btnH_Click(Index);
    else if (isControl(stroke, Key::down))
        btnL_Click(Index);
    else if (isControl(stroke, U'c'))
        copySelected(Index);
    else if (isControl(stroke, U'v'))
        paste(Index);
    else if (isControl(stroke, U'd'))
        doubleSelected(Index);
    else
        return false;
    return true;
}

/// Selects a row for the user, who is at the keyboard or has dropped something: no event of it writes into a
/// list.
void frmSetup::selectRow(std::int16_t list, int row) {
    noUpdate = -1;
    lstApps[static_cast<std::size_t>(list)].setListIndex(row);
    noUpdate = 0;
}

/// Unlike after the button, the next row is selected: the user can go on from there.
void frmSetup::removeSelected(std::int16_t list) {
    const forms::ListBox& rows = lstApps[static_cast<std::size_t>(list)];
    const int row = rows.listIndex();
    if (row < 0)
        return;
    btnRemove_Click(list);
    selectRow(list, std::min(row, rows.listCount() - 1));
}

void frmSetup::copySelected(std::int16_t list) {
    const auto page = static_cast<std::size_t>(list);
    const std::int32_t slot = lstApps[page].listIndex() + 1;
    if (slot < 1)
        return;
    try {
        platform::clearClipboard();
        platform::setClipboardText(store::rowText(workList[page][slot], slot));
    } catch (const runtime::RuntimeError&) { // another program holds the clipboard
        platform::beep();
    }
}

void frmSetup::paste(std::int16_t list) {
    std::optional<std::vector<ToolButton>> rows;
    try {
        rows = store::rowsOf(platform::clipboardText());
    } catch (const runtime::RuntimeError&) { // another program holds the clipboard
    }
    if (rows && hasRoom(list, rows->size()))
        insert(list, *rows);
    else
        platform::beep();
}

void frmSetup::doubleSelected(std::int16_t list) {
    const auto page = static_cast<std::size_t>(list);
    const std::int32_t slot = lstApps[page].listIndex() + 1;
    if (slot < 1)
        return;
    if (hasRoom(list, 1))
        insert(list, {workList[page][slot]});
    else
        platform::beep();
}

/// Whether so many rows more can be counted.
bool frmSetup::hasRoom(std::int16_t list, std::size_t rows) const {
    const std::int32_t free = mostRows - workList[static_cast<std::size_t>(list)].upperBound();
    return static_cast<std::int64_t>(rows) <= free;
}

/// Puts rows behind the selected one, or at the end, and selects the last of them.
void frmSetup::insert(std::int16_t list, const std::vector<ToolButton>& rows) {
    const auto page = static_cast<std::size_t>(list);
    const int selected = lstApps[page].listIndex();
    const int before = lstApps[page].listCount();
    for (const ToolButton& row : rows) {
        ToolButton& added = append(list, row.type);
        const std::int16_t number = added.rowNumber;
        added = row;
        added.rowNumber = number;
        added.live = 1;
    }
    const auto count = static_cast<int>(rows.size());
    if (selected >= 0)
        moveUp(list, selected + 1, before, before + count);
    fillList(list);
    selectRow(list, (selected < 0 ? before : selected + 1) + count - 1);
}

/// Moves the rows from `begin` up to `target`, both counted from 0, with `end` behind the last of them; those
/// that stood there follow. Both parts are turned round, then the whole: that takes as many exchanges as
/// there are rows.
void frmSetup::moveUp(std::int16_t list, int target, int begin, int end) {
    const auto turn = [this, list](int first, int behind) {
        for (int last = behind - 1; first < last; ++first, --last)
            swapEntries(list, static_cast<std::int16_t>(first + 1), static_cast<std::int16_t>(last + 1));
    };
    turn(target, begin);
    turn(begin, end);
    turn(target, end);
}

} // namespace setup
