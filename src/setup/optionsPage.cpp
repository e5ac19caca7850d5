// The page of global options: filled from the settings, saved by the OK button; but the language takes
// effect at once.
#include "setup/frmSetup.h"

#include "forms/event.h"
#include "setup/ObjFiledialog.h"
#include "store/help.h"
#include "store/settings.h"
#include "store/state.h"
#include "store/textCatalogue.h"

namespace setup {

using store::languageOffset;
using store::LoadResString;
namespace key = store::key;

namespace {

constexpr std::array<const char*, 4> units = {"mil", "Inch", "um", "mm"};
constexpr std::array<const char*, 8> accuracies = {"@",      "0.#",     "0.##",     "0.###",
                                                   "0.####", "0.#####", "0.######", "0.#######"};

int flagValue(const char* section, const char* key) {
    return store::getFlag(section, key) ? 1 : 0;
}

/// Whether the setting for the windows to reopen has a bit set.
int reopens(std::int32_t bit) {
    return (store::getNumber(store::section::toolbar, key::winEAGLE) & bit) != 0 ? 1 : 0;
}

} // namespace

/// The fixed rows of the drop-down lists.
void frmSetup::fillChoices() {
    for (forms::ComboBox& list : cboUnit)
        for (const char* unit : units)
            list.addItem(unit);
    for (forms::ComboBox& list : cboAccur)
        for (const char* accuracy : accuracies)
            list.addItem(accuracy);
    cboLanguage.addItem("english");
    cboLanguage.addItem("deutsch");
}

void frmSetup::fillEAGLE() {
    constexpr const char* toolbar = store::section::toolbar;
    chkEAGLE.setValue(flagValue(toolbar, key::autoEAGLE));
    chkClose.setValue(flagValue(toolbar, key::autoToolbar));
    chkLastBRD.setValue(reopens(1));
    chkLastSCH.setValue(reopens(2));
    chkLastLBR.setValue(reopens(4));
    chkOneInst.setValue(flagValue(toolbar, key::oneEAGLE));
    chkUnitCalc.setValue(flagValue(store::section::unit, key::visible));
    txtEAGLE.setText(store::getini(toolbar, key::eaglePath));
    // On the first load this is a change, and loadResources runs once more inside it.
    cboLanguage.setListIndex(languageOffset != 0 ? 0 : 1);
    // Kept: what the program runs with wins over the setting.
    chkUnitCalc.setValue(store::unitCalcActive != 0 ? 1 : 0);
    for (std::size_t side = 0; side < 2; ++side)
        cboUnit[side].setText(store::unitName[side]);
    for (std::size_t side = 0; side < 2; ++side)
        cboAccur[side].setText(store::unitAccuracy[side]);
}

void frmSetup::cboLanguage_Click() {
    if (noUpdate != 0)
        return;
    constexpr int german = 1;
    languageOffset = cboLanguage.listIndex() == german ? 0 : store::englishBank;
    store::setini(store::section::global, key::language, std::to_string(languageOffset));
    loadResources();
    forms::raise(onNewLanguage);
}

void frmSetup::btnEAGLE_Click() {
    // Kept: the name of another routine.
    store::currentRoutine = "btnAdd_Click";
    ObjFiledialog files;
    files.setFilename("EAGLE.EXE");
    files.setFilter("*.exe");
    files.setDialogTitle(LoadResString(1056 + languageOffset));
    files.setFlags(fileDialogFlags);
    files.ShowOpen(window());
    if (!files.Filename().empty())
        txtEAGLE.setText(files.Filename());
}

void frmSetup::btnHelp_Click() {
    store::showHelp();
}

} // namespace setup
