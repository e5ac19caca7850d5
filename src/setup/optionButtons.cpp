// The option buttons of the list pages as they are meant: each page's own three show and store what is asked
// for before the selected row's button runs. As they are wired otherwise stands in listPages.cpp.
#include "setup/frmSetup.h"

namespace setup {

namespace entryType = store::entryType;
namespace dialogKind = store::dialogKind;

namespace {
constexpr std::size_t kinds = 3; ///< none, input box, file dialog
} // namespace

void frmSetup::enableQuestion(std::size_t page, bool enabled) {
    labPara[page].setEnabled(enabled);
    txtPara[page].setEnabled(enabled);
}

/// What the selected row stores: another number than those of the option buttons marks none of them. Without
/// a selection everything stays.
void frmSetup::showDialogKind(std::int16_t list) {
    const auto page = static_cast<std::size_t>(list);
    const std::int32_t slot = lstApps[page].listIndex() + 1;
    if (slot < 1)
        return;
    const std::int16_t type = workList[page][slot].type;
    const std::int16_t dialog = workList[page][slot].dialog;
    const bool edits = type == entryType::externalProgram || type == entryType::eagleCommand;
    for (std::size_t kind = 0; kind < kinds; ++kind) {
        forms::OptionButton& option = chkAdd[kinds * page + kind];
        option.setEnabled(edits);
        option.setValue(dialog == static_cast<std::int16_t>(kind));
    }
    enableQuestion(page, edits && (dialog == dialogKind::inputBox || dialog == dialogKind::fileDialog));
}

void frmSetup::storeDialogKind(std::int16_t Index) {
    const std::size_t page = static_cast<std::size_t>(Index) / kinds;
    const std::int32_t slot = lstApps[page].listIndex() + 1;
    if (slot < 1 || noUpdate != 0)
        return;
    const auto dialog = static_cast<std::int16_t>(static_cast<std::size_t>(Index) % kinds);
    workList[page][slot].dialog = dialog;
    enableQuestion(page, dialog != dialogKind::none);
}

} // namespace setup
